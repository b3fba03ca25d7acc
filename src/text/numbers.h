#pragma once

#include <cstdint>
#include <optional>

#include "text/text.h"

namespace swiftroll {

/// The number in decimal, without padding.
Text Decimal(std::int64_t number);
/// The number in decimal with leading zeros up to `digits` digits.
Text Decimal(std::int64_t number, std::size_t digits);

/// The whole number that the text writes in decimal, blanks around it and a sign allowed; nothing when the
/// text is no such number or it does not fit.
std::optional<std::int64_t> ParseDecimal(TextView text);

/// The number of a text, for the product's 32-bit and 16-bit integers.
/// @throws Failure TypeMismatch when the text is no number, Overflow when it does not fit the width.
std::int32_t ToLong(TextView text);
std::int16_t ToInteger(TextView text);

/// A truth value as the settings hold it, and back: a number but 0 is true.
/// @throws Failure as ToLong does, when the text is none
TextView BooleanText(bool value);
bool ToBoolean(TextView text);

}  // namespace swiftroll
