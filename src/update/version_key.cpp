#include "update/version_key.h"

#include <limits>
#include <vector>

#include "text/edit.h"
#include "text/failure.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

std::int32_t Checked(std::int32_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw Failure(FailureKind::Overflow);
    }
    return value;
}

std::vector<TextView> SplitAtPoints(TextView text) {
    std::vector<TextView> parts;
    for (std::size_t point = text.find('.'); point != TextView::npos; point = text.find('.')) {
        parts.push_back(text.substr(0, point));
        text.remove_prefix(point + 1);
    }
    parts.push_back(text);
    return parts;
}

std::int32_t PartOf(const std::vector<TextView>& parts, std::size_t i) {
    if (i >= parts.size()) throw Failure(FailureKind::IndexOutOfRange);
    const auto number = ParseDecimal(Trim(parts[i]));
    if (!number) throw Failure(FailureKind::TypeMismatch, parts[i]);
    if (*number > std::numeric_limits<std::int16_t>::max() ||
        *number < std::numeric_limits<std::int16_t>::min()) {
        throw Failure(FailureKind::Overflow);
    }
    return static_cast<std::int32_t>(*number);
}

/// One step below in a count from 99 to 0.
bool Lower(std::int32_t& part) {
    if (part != 0) {
        --part;
        return true;
    }
    part = 99;
    return false;
}

}  // namespace

Text AdjustVersion(TextView sVersion) {
    const Text version = ReplaceAll(sVersion.empty() ? TextView("0.0.0") : sVersion, " b", ".");
    const std::vector<TextView> parts = SplitAtPoints(version);
    std::int32_t a = PartOf(parts, 0), b = PartOf(parts, 1), c = PartOf(parts, 2);
    const bool isBeta = parts.size() > 3;
    if (isBeta && !Lower(c) && !Lower(b)) --a;
    const std::int32_t number = Checked(Checked(Checked(Checked(a * 100) + b) * 100) + c);
    const Text digits = Decimal(number, 6);
    return Concat({digits.substr(0, digits.size() - 4), ".", digits.substr(digits.size() - 4, 2), ".",
                   digits.substr(digits.size() - 2)});
}

}  // namespace swiftroll
