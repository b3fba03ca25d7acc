#pragma once

#include "check/file_records.h"
#include "check/findings.h"
#include "tables/schema.h"

namespace swiftroll::modCheck {

/// The years of a person, wide enough for what the dates leave open.
struct Life {
    YearSpan birth, death;
};

/// What the list of individuals says of the persons of the file, by their numbers: finds people without name
/// or sex, and those whose own years contradict each other.
std::vector<Life> CheckPersons(const TableSet& tables, const FileRecords& records, Findings& findings);

/// Finds marriages and births that the years of the members of a family speak against.
void CheckFamilies(const FileRecords& records, const std::vector<Life>& lives, Findings& findings);

}  // namespace swiftroll::modCheck
