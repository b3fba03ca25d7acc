#pragma once

#include "check/file_records.h"
#include "check/findings.h"
#include "tables/schema.h"

namespace swiftroll::modCheck {

/// Tells the islands of a file that has several: how many people each has, and the eldest of them, the first
/// one where no birth is known.
void CheckIslands(const TableSet& tables, const FileRecords& records, Findings& findings,
                  const std::function<Text(TextView id)>& describe);

}  // namespace swiftroll::modCheck
