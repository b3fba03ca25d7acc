#include "text/numbers.h"

#include <charconv>
#include <limits>

#include "text/edit.h"
#include "text/failure.h"

namespace swiftroll {
namespace {

template <class Integer>
Integer Narrow(TextView text) {
    const TextView digits = Trim(text);
    const bool plain =
        digits.find_first_not_of("0123456789", digits.starts_with('-') || digits.starts_with('+') ? 1 : 0) ==
        TextView::npos;
    const auto number = ParseDecimal(digits);
    if (!number) {
        // Digits alone that give no number are too many digits.
        throw Failure(plain && digits.size() > 18 ? FailureKind::Overflow : FailureKind::TypeMismatch);
    }
    if (*number < std::numeric_limits<Integer>::min() || *number > std::numeric_limits<Integer>::max()) {
        throw Failure(FailureKind::Overflow);
    }
    return static_cast<Integer>(*number);
}

constexpr TextView kTrue = "True", kFalse = "False";

}  // namespace

Text Decimal(std::int64_t number) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return Text(digits, end);
}

Text Decimal(std::int64_t number, std::size_t digits) {
    const Text text = Decimal(number);
    return text.size() >= digits ? text : Text(digits - text.size(), '0') + text;
}

std::optional<std::int64_t> ParseDecimal(TextView text) {
    text = Trim(text);
    if (text.starts_with('+') && text.size() > 1 && text[1] != '-') text.remove_prefix(1);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::int32_t ToLong(TextView text) { return Narrow<std::int32_t>(text); }

std::int16_t ToInteger(TextView text) { return Narrow<std::int16_t>(text); }

TextView BooleanText(bool value) { return value ? kTrue : kFalse; }

bool ToBoolean(TextView text) {
    if (SameButCase(text, kTrue)) return true;
    return !SameButCase(text, kFalse) && ToLong(text) != 0;
}

}  // namespace swiftroll
