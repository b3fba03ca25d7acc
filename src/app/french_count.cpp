#include "app/french_count.h"

#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll {

Text FrenchCount(std::int64_t count) {
    constexpr std::size_t kGroup = 3;
    Text text = Decimal(count);
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    for (std::size_t i = text.size(); i > first + kGroup; i -= kGroup) text.insert(i - kGroup, 1, ' ');
    return text;
}

Text FrenchTenths(std::int64_t tenths) { return Concat({Decimal(tenths / 10), ",", Decimal(tenths % 10)}); }

}  // namespace swiftroll
