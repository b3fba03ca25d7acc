#include "check/ancestor_circles.h"

#include <algorithm>

#include "check/spouses.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {
namespace {

/// The parents of each person, one behind the other.
class ParentLists {
  public:
    /// Counts, adds up, and places: then each start stands at its place.
    explicit ParentLists(const FileRecords& records) : starts_(records.persons.size() + 1) {
        std::uint32_t count = 0;
        Visit(records, [this](std::uint32_t child, std::uint32_t) { ++starts_[child]; });
        for (std::uint32_t& start : starts_) start = count += start;
        parents_.resize(count);
        Visit(records,
              [this](std::uint32_t child, std::uint32_t parent) { parents_[--starts_[child]] = parent; });
    }
    std::uint32_t First(std::uint32_t person) const { return starts_[person]; }
    std::uint32_t End(std::uint32_t person) const { return starts_[person + 1]; }
    std::uint32_t operator[](std::uint32_t place) const { return parents_[place]; }

  private:
    /// Calls `visit(child, parent)` for all of them.
    template <class Visitor>
    static void Visit(const FileRecords& records, const Visitor& visit) {
        std::vector<Spouse> spouses;
        for (std::size_t family = 0; family < records.families.size(); ++family) {
            ListSpouses(records, family, spouses);
            records.VisitMemberLinks(family, [&](const Link& link) {
                const std::uint32_t child = records.PersonOf(link.target);
                if (child == kNone || link.kind != LinkKind::Child) return;
                for (const Spouse& spouse : spouses) visit(child, spouse.person);
            });
        }
    }
    std::vector<std::uint32_t> starts_;  // by person, and one more
    std::vector<std::uint32_t> parents_;
};

/// A walk from everybody up to all ancestors, on a stack of its own: a long line of them is no danger.
class AncestorWalk {
  public:
    explicit AncestorWalk(const FileRecords& records)
        : parents_(records), places_(records.persons.size(), kNew) {}

    /// Calls `onCircle(people, count)` with the first of the people of a circle, each the child of the next
    /// one, and the number of all of them.
    template <class OnCircle>
    void Run(const OnCircle& onCircle) {
        for (std::uint32_t start = 0; start < places_.size(); ++start) {
            if (places_[start] == kNew) Enter(start);
            while (!way_.empty()) {
                Step& step = way_.back();
                if (step.nextParent == parents_.End(step.person)) {
                    places_[step.person] = kDone;
                    way_.pop_back();
                    continue;
                }
                const std::uint32_t parent = parents_[step.nextParent++];
                if (places_[parent] == kNew) {
                    Enter(parent);
                } else if (places_[parent] != kDone) {
                    onCircle(&way_[places_[parent]], way_.size() - places_[parent]);
                }
            }
        }
    }

    struct Step {
        std::uint32_t person;
        std::uint32_t nextParent;
    };

  private:
    static constexpr std::uint32_t kNew = kNone, kDone = kNone - 1;
    void Enter(std::uint32_t person) {
        places_[person] = static_cast<std::uint32_t>(way_.size());
        way_.push_back({person, parents_.First(person)});
    }

    ParentLists parents_;
    std::vector<std::uint32_t> places_;  // by person: on the way, or one of the numbers above
    std::vector<Step> way_;              // from a person up to the one that is looked at
};

}  // namespace

void CheckAncestorCircles(const FileRecords& records, Findings& findings,
                          const std::function<Text(TextView id)>& describe) {
    AncestorWalk walk(records);
    walk.Run([&](const AncestorWalk::Step* circle, std::size_t count) {
        constexpr std::size_t kMostNames = 12;
        const auto nameOf = [&](std::size_t i) {
            return describe(records.ids.Get(records.persons[circle[i].person].id));
        };
        Text text = nameOf(0);
        for (std::size_t i = 1; i < std::min(count, kMostNames); ++i)
            text += Concat({", enfant de "_t, nameOf(i)});
        if (count > kMostNames) {
            const auto rest = static_cast<std::int64_t>(count - kMostNames);
            text += Concat({", puis "_t, Decimal(rest), " autres"_t});
        }
        text += Concat({", enfant de "_t, nameOf(0), "."});
        const PersonRecord& first = records.persons[circle->person];
        findings.Add(Rule::OwnAncestor, first.line, records.ids.Get(first.id), text);
    });
}

}  // namespace swiftroll::modCheck
