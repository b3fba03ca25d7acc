#include "app/cell_font.h"

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr std::size_t kFields = 7;
constexpr TextView kYes = "1", kNo = "0";

bool IsYes(TextView field) { return field != kNo && !field.empty() && field != "False" && field != "Faux"; }

/// Whole, or with a comma or a point.
bool IsSize(TextView text) {
    const Text digits = ReplaceAll(ReplaceAll(text, ",", ""), ".", "");
    return digits.size() + 1 >= text.size() && digits.size() <= 4 &&
           digits.find_first_not_of("0123456789") == Text::npos && ParseDecimal(digits).value_or(0) > 0;
}

}  // namespace

std::optional<CellFont> ParseCellFont(TextView fields) {
    const auto parts = Split(fields, "|");
    if (parts.size() < kFields || parts[0].empty() || !IsSize(parts[1])) return std::nullopt;
    const auto colour = ParseDecimal(parts[6]);
    if (!colour) return std::nullopt;
    return CellFont{Text(parts[0]),
                    Text(parts[1]),
                    IsYes(parts[2]),
                    IsYes(parts[3]),
                    IsYes(parts[4]),
                    IsYes(parts[5]),
                    static_cast<std::uint32_t>(*colour) & 0xFFFFFFu};
}

Text CellFontFields(const CellFont& font) {
    const auto flag = [](bool on) { return on ? kYes : kNo; };
    return Concat({font.name, "|", font.size, "|", flag(font.bold), "|", flag(font.italic), "|",
                   flag(font.strikethrough), "|", flag(font.underline), "|", Decimal(font.colour)});
}

Text CellFontCaption(const CellFont& font) {
    return Concat({font.name, ", ", font.size, " pt", font.bold ? ", Gras" : "",
                   font.italic ? ", Italique" : "", font.strikethrough ? ", Barré"_t : "",
                   font.underline ? ", Souligné"_t : ""});
}

}  // namespace swiftroll
