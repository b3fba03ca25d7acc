#include "extract/record_range.h"

#include <charconv>

namespace swiftroll::modSaveGed {

RecordRange RangeOfTag(TextView sTag) {
    RecordRange range;
    const char* const end = sTag.data() + sTag.size();
    const auto start = std::from_chars(sTag.data(), end, range.start);
    if (start.ec != std::errc() || start.ptr == end || *start.ptr != ' ') return {};
    const auto rest = std::from_chars(start.ptr + 1, end, range.end);
    if (rest.ec != std::errc() || rest.ptr != end) return {};
    return range;
}

}  // namespace swiftroll::modSaveGed
