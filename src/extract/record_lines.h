#pragma once

#include <functional>
#include <vector>

#include "text/text.h"

namespace swiftroll::modSaveGed {

/// A reference of a record to a record of its own.
struct Reference {
    int rank;  // of its tag
    TextView sTag, sXref;
};

/// `FindOutTags`: the references of a record of the tags OBJE, NOTE, REPO, SOUR, SUBM and SUBN in this order,
/// those of a tag in the order of their lines, as views of the record. Lines are split as the reader splits
/// them, and the value must be a reference and nothing else ("@", one character or more, "@"); all other text
/// is text.
std::vector<Reference> FindOutTags(TextView sRecord);

/// `RemoveIndis`: the record without those lines of level 1 with the tags HUSB, WIFE and CHIL whose value is
/// a reference that `isKept` does not want. A line goes with its own line end, of whatever kind. The view is
/// of `sRecord` when no line goes, else of `kept`.
TextView RemoveIndis(TextView sRecord, const std::function<bool(TextView sId)>& isKept, Text& kept);

}  // namespace swiftroll::modSaveGed
