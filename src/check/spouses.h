#pragma once

#include "check/file_records.h"

namespace swiftroll::modCheck {

/// A husband or a wife that the record of a family names.
struct Spouse {
    std::uint32_t person;
    LinkKind kind;
};

/// Fills `spouses` with those of a family who have a record; of more than a family has in earnest, the first
/// ones, so that parents times children stays a small number.
void ListSpouses(const FileRecords& records, std::size_t family, std::vector<Spouse>& spouses);

}  // namespace swiftroll::modCheck
