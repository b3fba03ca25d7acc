#pragma once

#include <span>
#include <vector>

#include "kinship/kin_terms.h"

namespace swiftroll::modKinship {

/// A step of a path from one individual to the next.
struct KinStep {
    /// What the next one is to the present one; Same for two records of one individual.
    enum class Way { Parent, Child, Spouse, Same };
    Way way;
    /// Of the next one.
    Sex sex;
    /// For a child whose parent was stepped to just before: whether both children have the same other parent.
    OtherParent other = OtherParent::Unknown;
};

/// What the individual at the end of a path is to the one at its beginning.
struct KinName {
    Text name;
    /// Without a value where a marriage lies on the path, or a line that goes up again.
    std::optional<Degrees> degrees;
    /// With degrees: how many steps lead to the common ancestor.
    std::size_t stepsToAncestor = 0;
};

/// Gives paths their names. What is a blood relation is told by one term; marriages, and lines that go up
/// again, make a chain of terms, from the end of the path to its beginning ("frère de l'épouse du cousin
/// germain").
class KinNamer {
  public:
    KinName NameOf(std::span<const KinStep> steps);
    /// What the relative of this sex at the end of the line is called.
    TextView NameOf(const BloodLine& line, Sex sex) { return terms_.Of(line).Name(sex); }

  private:
    struct Part {
        KinPart kin;
        Sex sex;
        std::size_t top;  // steps to the highest individual of a line of blood
    };
    void Split(std::span<const KinStep> steps);

    KinTerms terms_;
    std::vector<Part> parts_;  // of the present path
};

/// The same path walked from its end to its beginning, where the individual has the sex `sex`.
std::vector<KinStep> Reversed(std::span<const KinStep> steps, Sex sex);

}  // namespace swiftroll::modKinship
