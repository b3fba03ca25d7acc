#include "kinship/relations.h"

#include "text/literal.h"

namespace swiftroll::modKinship {

Relation RelationOf(TextView sType) {
    if (sType == "Père"_t || sType == "Mère"_t || sType == "Parent") return Relation::Parent;
    if (sType == "Fils" || sType == "Fille" || sType == "Enfant") return Relation::Child;
    if (sType == "Epoux" || sType == "Epouse" || sType == "Conjoint") return Relation::Spouse;
    return Relation::Other;
}

std::optional<TextView> FoldedType(TextView sFirst, TextView sSecond) {
    if (RelationOf(sFirst) == Relation::Child && RelationOf(sSecond) == Relation::Spouse) return sFirst;
    if (sFirst == "Epoux" && sSecond == "Mère"_t) return "Père"_t;
    if (sFirst == "Epouse" && sSecond == "Père"_t) return "Mère"_t;
    if (sFirst == "Conjoint" && sSecond == "Parent") return "Parent";
    return std::nullopt;
}

}  // namespace swiftroll::modKinship
