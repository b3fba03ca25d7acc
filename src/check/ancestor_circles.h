#pragma once

#include "check/file_records.h"
#include "check/findings.h"

namespace swiftroll::modCheck {

/// Finds people who are their own ancestors, and names the circle. Linear in people and links: of the circles
/// that share people, not every one is told, but one of them always is.
/// `describe` gives the words for a person by its identifier.
void CheckAncestorCircles(const FileRecords& records, Findings& findings,
                          const std::function<Text(TextView id)>& describe);

}  // namespace swiftroll::modCheck
