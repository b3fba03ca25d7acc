#pragma once

#include "check/file_records.h"
#include "check/findings.h"

namespace swiftroll::modCheck {

/// Finds the lines that name a record which is not there, or not of the kind that they need.
void CheckReferences(const FileRecords& records, Findings& findings);

/// Finds the links between persons and families that stand in one of the two records alone, and families
/// without any member.
void CheckLinks(const FileRecords& records, Findings& findings);

}  // namespace swiftroll::modCheck
