#pragma once

#include "gedcom/line_reader.h"

namespace swiftroll::modSaveGed {

using modReadGedcom::RecordRange;

/// The range that the tag of a row tells; an empty one when it does not hold two numbers, such as that of a
/// family without a record.
RecordRange RangeOfTag(TextView sTag);

inline bool IsEmpty(const RecordRange& range) { return range.end <= range.start; }
inline std::size_t LengthOf(const RecordRange& range) {
    return IsEmpty(range) ? 0 : static_cast<std::size_t>(range.end - range.start);
}

}  // namespace swiftroll::modSaveGed
