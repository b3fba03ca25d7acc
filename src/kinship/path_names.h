#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <deque>

#include "kinship/kin_name.h"
#include "tables/schema.h"

namespace swiftroll::modKinship {

/// Names the paths of `lvwKinship` in `lvwPaths`, each when it is first needed: a search that finds millions
/// of paths has enough to do with finding them.
class PathNames {
  public:
    explicit PathNames(TableSet& tables) : tables_(tables) {}

    /// Writes name, degrees and common ancestors into a row of `lvwPaths`. The row of a hidden path stays as
    /// it is, since the path stands nowhere.
    void Complete(Row& row);
    /// What the individual at the beginning of the path of that row is to the one at its end; an empty text
    /// for a hidden path.
    Text NameBackwards(const Row& row);

  private:
    struct Person {
        TextView id;
        Sex sex = Sex::Unknown;
    };
    struct Spouses {
        TextView husband, wife;
        /// The other one of the two; an empty text when there is none, or `id` is neither.
        TextView BesideOf(TextView id) const;
    };
    /// A step of the path, whom it leads to, and the family that makes it.
    struct Link {
        KinStep step;
        const Person* to;
        TextRef family;  // of the store of lvwKinship
    };
    bool ReadPath(const Row& row);
    void Append(KinStep::Way way, const Person& to, TextRef sFam);
    void ForgetWhatIsGone();
    KinStep::Way WayOf(TextRef sType);
    const Person& PersonOf(TextRef sIndi);
    const Spouses& FamilyOf(TextRef sFam);
    const Person& PersonAfter(std::size_t steps) const { return steps == 0 ? *from_ : *links_[steps - 1].to; }
    Text CommonAncestors(std::size_t stepsToAncestor);

    TableSet& tables_;
    KinNamer namer_;
    // What was looked up, by the texts of lvwKinship.
    std::uint32_t clearings_ = 0;
    boost::unordered_flat_map<TextRef, KinStep::Way> wayOf_;
    boost::unordered_flat_map<TextRef, const Person*> personOf_;
    boost::unordered_flat_map<TextRef, const Spouses*> familyOf_;
    std::deque<Person> people_;
    std::deque<Spouses> families_;
    // The present path.
    const Person* from_ = nullptr;
    std::vector<Link> links_;
    std::vector<KinStep> steps_;
};

}  // namespace swiftroll::modKinship
