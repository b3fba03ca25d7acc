#pragma once

#include <array>
#include <map>
#include <optional>
#include <vector>

#include "text/text.h"

namespace swiftroll::modKinship {

enum class Sex { Male, Female, Unknown };
/// Of the cell `Sex` of an individual.
Sex SexOf(TextView sSex);

/// Whether two children of one parent have their other parent in common, as far as both are known.
enum class OtherParent { Unknown, Same, Different };

/// A way along blood alone: so many generations up to the common ancestor, and so many down. `other` counts
/// where both are one.
struct BloodLine {
    int up = 0, down = 0;
    OtherParent other = OtherParent::Unknown;

    bool AreSiblings() const { return up == 1 && down == 1; }
    friend bool operator==(const BloodLine&, const BloodLine&) = default;
};

/// The degrees of two relatives: the civil one counts the generations of both lines, the canonical one those
/// of the longer line.
struct Degrees {
    int civil = 0, canonical = 0;
    friend bool operator==(const Degrees&, const Degrees&) = default;
};
Degrees DegreesOf(const BloodLine& line);

/// The French word for one of the kin, with a form for each sex and one for none.
class KinTerm {
  public:
    struct Words {
        TextView male, female;
        /// Empty for "male ou female".
        TextView neutral = {};
    };
    /// `prefix` stands before each word, `suffix` behind the whole.
    explicit KinTerm(const Words& words, TextView prefix = {}, TextView suffix = {});

    /// "oncle"
    TextView Name(Sex sex) const { return forms_[static_cast<std::size_t>(sex)].name; }
    /// " de l'oncle"
    TextView Of(Sex sex) const { return forms_[static_cast<std::size_t>(sex)].of; }

  private:
    struct Form {
        Text name, of;
    };
    Form& FormOf(Sex sex) { return forms_[static_cast<std::size_t>(sex)]; }
    std::array<Form, 3> forms_;
};

/// One part of a relation: blood, or without blood a spouse.
using KinPart = std::optional<BloodLine>;

/// The terms of the kin; each is put together once.
class KinTerms {
  public:
    KinTerms();

    /// What a spouse is called, or the relative at the end of a line of blood that has a generation at least.
    const KinTerm& Of(const KinPart& part);
    /// The one word for the two parts that a relation begins with ("beau-père"), nullptr when there is none.
    const KinTerm* OfMarriage(const KinPart& first, const KinPart& second) const;

  private:
    KinTerm spouse_;
    std::vector<KinTerm> marriages_;  // in the order of their table
    struct Line {
        int up, down;
        bool isHalf;
        friend auto operator<=>(const Line&, const Line&) = default;
    };
    std::map<Line, KinTerm> blood_;
};

}  // namespace swiftroll::modKinship
