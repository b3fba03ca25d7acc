#include "kinship/blood_relatives.h"

#include <tuple>

namespace swiftroll::modKinship {
namespace {

/// Someone reached by lines of so many generations up and down from these ancestors.
struct Reached {
    std::int32_t individual;
    int up, down;
    std::vector<std::int32_t> ancestors;

    auto Order() const { return std::tuple(individual, std::max(up, down), up); }
};

/// Brings those together who were reached by lines of the same length from several ancestors.
void Merge(std::vector<Reached>& ring) {
    std::sort(ring.begin(), ring.end(),
              [](const Reached& a, const Reached& b) { return a.Order() < b.Order(); });
    std::size_t kept = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (kept > 0 && ring[kept - 1].Order() == ring[i].Order()) {
            auto& ancestors = ring[kept - 1].ancestors;
            ancestors.insert(ancestors.end(), ring[i].ancestors.begin(), ring[i].ancestors.end());
        } else if (kept++ != i) {
            ring[kept - 1] = std::move(ring[i]);
        }
    }
    ring.resize(kept);
    for (Reached& each : ring) {
        auto& ancestors = each.ancestors;
        std::sort(ancestors.begin(), ancestors.end());
        ancestors.erase(std::unique(ancestors.begin(), ancestors.end()), ancestors.end());
    }
}

/// The parents of an individual but for one of them.
std::vector<std::int32_t> OtherParents(const Parentage& parentage, std::int32_t child, std::int32_t parent) {
    std::vector<std::int32_t> others;
    parentage.VisitParents(child, [&](std::int32_t each) {
        if (each != parent) others.push_back(each);
    });
    return others;
}

OtherParent CompareOthers(const Parentage& parentage, const Reached& sibling, std::int32_t individual) {
    if (sibling.ancestors.size() > 1) return OtherParent::Same;
    const auto isKnown = [&](std::int32_t child) {
        return !OtherParents(parentage, child, sibling.ancestors.front()).empty();
    };
    const bool bothAreKnown = isKnown(sibling.individual) && isKnown(individual);
    return bothAreKnown ? OtherParent::Different : OtherParent::Unknown;
}

}  // namespace

std::vector<BloodRelative> FindBloodRelatives(const Parentage& parentage, std::int32_t individual,
                                              std::int32_t mostCivil) {
    std::vector<BloodRelative> relatives;
    const auto none = [&] {
        return std::vector<bool>(static_cast<std::size_t>(parentage.IndividualCount()));
    };
    // Whoever was reached before is nearer by that relation, and so are his descendants. But his ancestors
    // are relatives only if he is an ancestor.
    std::vector<bool> isReached = none(), isAncestor = none();
    isReached[static_cast<std::size_t>(individual)] = isAncestor[static_cast<std::size_t>(individual)] = true;
    std::vector<std::int32_t> generation{individual};
    std::vector<Reached> ring{{individual, 0, 0, {}}};
    for (int civil = 1; civil <= mostCivil && !(generation.empty() && ring.empty()); ++civil) {
        std::vector<Reached> next;
        const auto reach = [&](std::int32_t who, int up, int down, std::vector<std::int32_t> ancestors) {
            if (!isReached[static_cast<std::size_t>(who)])
                next.push_back({who, up, down, std::move(ancestors)});
        };
        std::vector<std::int32_t> parents;
        for (const std::int32_t child : generation) {
            parentage.VisitParents(child, [&](std::int32_t parent) {
                if (isAncestor[static_cast<std::size_t>(parent)]) return;
                isAncestor[static_cast<std::size_t>(parent)] = true;
                parents.push_back(parent);
                reach(parent, civil, 0, {parent});
            });
        }
        generation = std::move(parents);
        for (const Reached& from : ring) {
            parentage.VisitChildren(from.individual, [&](std::int32_t child) {
                reach(child, from.up, from.down + 1,
                      from.down == 0 ? std::vector{from.individual} : from.ancestors);
            });
        }
        Merge(next);
        for (const Reached& each : next) {
            // The first of several relations of this degree is the one that counts.
            if (isReached[static_cast<std::size_t>(each.individual)]) continue;
            isReached[static_cast<std::size_t>(each.individual)] = true;
            BloodLine line{each.up, each.down};
            if (line.AreSiblings()) line.other = CompareOthers(parentage, each, individual);
            relatives.push_back({each.individual, line, each.ancestors});
        }
        ring = std::move(next);
    }
    std::sort(relatives.begin(), relatives.end(), [](const BloodRelative& a, const BloodRelative& b) {
        const auto order = [](const BloodRelative& each) {
            const Degrees degrees = DegreesOf(each.line);
            return std::tuple(degrees.civil, degrees.canonical, each.line.up, each.individual);
        };
        return order(a) < order(b);
    });
    return relatives;
}

}  // namespace swiftroll::modKinship
