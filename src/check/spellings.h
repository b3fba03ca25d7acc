#pragma once

#include "check/file_records.h"
#include "check/findings.h"
#include "tables/schema.h"

namespace swiftroll::modCheck {

/// Finds places, and surnames, that differ in capitals, accents or punctuation alone: a finding for each
/// group of them, with its spellings and how often each comes, at the person or family that has the rarest.
void CheckSpellings(const TableSet& tables, const FileRecords& records, Findings& findings);

}  // namespace swiftroll::modCheck
