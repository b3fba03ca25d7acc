#pragma once

#include <functional>
#include <vector>

#include "text/text.h"

namespace swiftroll::modSaveGed {

/// A reference that a record makes: the tag of the line, a blank and the cross-reference, as in
/// "NOTE @N1@".
using ReferenceKey = Text;

/// `FindOutTags`: the references of a record to records of their own, of the tags OBJE, NOTE, REPO, SOUR,
/// SUBM and SUBN in this order, those of a tag in the order of their lines. The value of the line must be a
/// reference and nothing else ("@", one character or more, "@"); all other text is text.
std::vector<ReferenceKey> FindOutTags(TextView sRecord);

/// `RemoveIndis`: the record without those lines of level 1 with the tags HUSB, WIFE and CHIL whose value is
/// a reference that `isKept` does not want. A line goes with its own line end, of whatever kind.
Text RemoveIndis(TextView sRecord, const std::function<bool(TextView sId)>& isKept);

}  // namespace swiftroll::modSaveGed
