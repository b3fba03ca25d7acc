#pragma once

#include <cstdint>
#include <optional>

#include "text/text.h"

namespace swiftroll::modKinship {

/// What the word of a link says that one individual is to another. "ALIA" and unknown words are Other.
enum class Relation { Parent, Child, Spouse, Other };
Relation RelationOf(TextView sType);

/// How a link can be told together with the one behind it or before it, when both are of one family.
enum class Fold : std::uint8_t { None, ParentsSpouse, HusbandsChild, WifesChild, PartnersChild };
/// Of a link with the one behind it: two links fold when both give the same, and not None.
Fold FoldAsFirst(TextView sType);
/// The same of a link with the one before it.
Fold FoldAsSecond(TextView sType);

/// The word of two links in a row of one family that say together what the first individual is to the third,
/// so that the one between need not be told: a child and its parent's spouse, a spouse and the other's child.
/// Nothing for all other links.
std::optional<TextView> FoldedType(TextView sFirst, TextView sSecond);

}  // namespace swiftroll::modKinship
