#include "kinship/kin_name.h"

#include "text/literal.h"

namespace swiftroll::modKinship {
namespace {

using Way = KinStep::Way;

constexpr TextView kSamePerson = "même personne"_t;

Way Opposite(Way way) {
    switch (way) {
        case Way::Parent:
            return Way::Child;
        case Way::Child:
            return Way::Parent;
        default:
            return way;
    }
}

}  // namespace

/// Cuts the path into marriages and lines of blood, each of which goes up and then down.
void KinNamer::Split(std::span<const KinStep> steps) {
    parts_.clear();
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const KinStep& step = steps[i];
        if (step.way == Way::Spouse) {
            parts_.push_back({std::nullopt, step.sex, 0});
            continue;
        }
        if (step.way == Way::Same) {
            if (!parts_.empty() && step.sex != Sex::Unknown) parts_.back().sex = step.sex;
            continue;
        }
        const bool goesUp = step.way == Way::Parent;
        const bool continues =
            !parts_.empty() && parts_.back().kin && !(goesUp && parts_.back().kin->down > 0);
        if (!continues) parts_.push_back({BloodLine{}, step.sex, i});
        Part& part = parts_.back();
        part.sex = step.sex;
        if (goesUp) {
            ++part.kin->up;
            part.top = i + 1;
        } else {
            ++part.kin->down;
            if (part.kin->AreSiblings()) part.kin->other = step.other;
        }
    }
}

KinName KinNamer::NameOf(std::span<const KinStep> steps) {
    Split(steps);
    if (parts_.empty()) return {Text(kSamePerson), std::nullopt};
    const KinTerm* const marriage =
        parts_.size() > 1 ? terms_.OfMarriage(parts_[0].kin, parts_[1].kin) : nullptr;
    const std::size_t first = marriage != nullptr ? 1 : 0;
    Text name;
    for (std::size_t i = parts_.size(); i-- > first;) {
        const KinTerm& term = i == first && marriage != nullptr ? *marriage : terms_.Of(parts_[i].kin);
        name += name.empty() ? term.Name(parts_[i].sex) : term.Of(parts_[i].sex);
    }
    if (parts_.size() > 1 || !parts_[0].kin) return {name, std::nullopt};
    return {name, DegreesOf(*parts_[0].kin), parts_[0].top};
}

std::vector<KinStep> Reversed(std::span<const KinStep> steps, Sex sex) {
    std::vector<KinStep> reversed;
    for (std::size_t i = steps.size(); i-- > 0;) {
        reversed.push_back({Opposite(steps[i].way), i > 0 ? steps[i - 1].sex : sex,
                            i + 1 < steps.size() ? steps[i + 1].other : OtherParent::Unknown});
    }
    return reversed;
}

}  // namespace swiftroll::modKinship
