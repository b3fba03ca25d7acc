#include "kinship/relations.h"

#include "text/literal.h"

namespace swiftroll::modKinship {

Relation RelationOf(TextView sType) {
    if (sType == "Père"_t || sType == "Mère"_t || sType == "Parent") return Relation::Parent;
    if (sType == "Fils" || sType == "Fille" || sType == "Enfant") return Relation::Child;
    if (sType == "Epoux" || sType == "Epouse" || sType == "Conjoint") return Relation::Spouse;
    return Relation::Other;
}

Fold FoldAsFirst(TextView sType) {
    if (RelationOf(sType) == Relation::Child) return Fold::ParentsSpouse;
    if (sType == "Epoux") return Fold::HusbandsChild;
    if (sType == "Epouse") return Fold::WifesChild;
    if (sType == "Conjoint") return Fold::PartnersChild;
    return Fold::None;
}

Fold FoldAsSecond(TextView sType) {
    if (RelationOf(sType) == Relation::Spouse) return Fold::ParentsSpouse;
    if (sType == "Mère"_t) return Fold::HusbandsChild;
    if (sType == "Père"_t) return Fold::WifesChild;
    if (sType == "Parent") return Fold::PartnersChild;
    return Fold::None;
}

std::optional<TextView> FoldedType(TextView sFirst, TextView sSecond) {
    const Fold fold = FoldAsFirst(sFirst);
    if (fold != FoldAsSecond(sSecond)) return std::nullopt;
    switch (fold) {
        case Fold::None:
            break;
        case Fold::ParentsSpouse:
            return sFirst;
        case Fold::HusbandsChild:
            return "Père"_t;
        case Fold::WifesChild:
            return "Mère"_t;
        case Fold::PartnersChild:
            return "Parent";
    }
    return std::nullopt;
}

}  // namespace swiftroll::modKinship
