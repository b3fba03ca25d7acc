#include "shell/option_rules.h"

#include <algorithm>
#include <optional>

#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr TextView kDefaultLimit = "50";

/// The number without its fraction, which stands behind a comma or a point; nothing for another text.
std::optional<std::int64_t> WholePart(TextView text) {
    text = Trim(text);
    const std::size_t end = std::min(text.find_first_of(",."), text.size());
    const TextView fraction = text.substr(std::min(end + 1, text.size()));
    if (fraction.find_first_not_of("0123456789") != TextView::npos) return std::nullopt;
    return ParseDecimal(text.substr(0, end));
}

/// A limit is a number of at least 1; what is no number gives way to the default while the limit is in force.
void CheckLimit(const CheckBox& check, TextBox& limit, TextView standard) {
    const auto number = WholePart(limit.Get());
    if (number && *number < 1) limit.SetText("1");
    if (!number && check.Checked()) limit.SetText(standard);
    limit.SetText(Text(Trim(limit.Get())));
}

}  // namespace

void BindOptionRules(OptionRecord& options) {
    options.txtINDEX.OnLostFocus = [&options] {
        const Text& text = options.txtINDEX.Get();
        if (text > "9" || text < "0") options.txtINDEX.SetText("1");
    };
    options.txtINDEX.Accepts = [](TextView text) { return WholePart(text).has_value(); };
    options.txtPrivateYears.Accepts = [](TextView text) { return ParseDecimal(text).value_or(0) >= 1; };
    options.txtPrivateYears.OnLostFocus = [&options] {
        TextBox& years = options.txtPrivateYears;
        if (!years.Accepts(years.Get())) years.SetText(OptionRecord::kDefaultPrivateYears);
    };
    const auto bindLimit = [](CheckBox& check, TextBox& limit, TextView standard) {
        limit.Accepts = [](TextView text) { return WholePart(text).value_or(0) >= 1; };
        limit.OnLostFocus = [&check, &limit, standard] { CheckLimit(check, limit, standard); };
        check.OnClick = [&check, &limit, standard] {
            if (check.Checked() && limit.Get().empty()) limit.SetText(standard);
        };
    };
    bindLimit(options.chkMaxLinks, options.txtMaxLinks, kDefaultLimit);
    bindLimit(options.chkMaxSpouses, options.txtMaxSpouses, kDefaultLimit);
    bindLimit(options.chkNearest, options.txtNearest, OptionRecord::kDefaultNearest);
}

}  // namespace swiftroll
