#include "app/option_record.h"

#include <algorithm>

namespace swiftroll {

OptionRecord::OptionRecord(std::span<const FormatOption> formats)
    : Window("frmMain"), formats_(formats.begin(), formats.end()) {}

std::vector<Text> OptionRecord::EachFormat(Text FormatOption::*part) const {
    std::vector<Text> parts;
    for (const FormatOption& format : formats_) parts.push_back(format.*part);
    return parts;
}

int OptionRecord::FirstChoice() const {
    const auto first =
        std::find_if(formats_.begin(), formats_.end(), std::mem_fn(&FormatOption::isFirstChoice));
    return first == formats_.end() ? 0 : static_cast<int>(first - formats_.begin());
}

std::deque<TextBox> OptionRecord::FieldForEach(ControlTexts texts, Text FormatOption::*standard) {
    std::deque<TextBox> fields;
    for (const FormatOption& format : formats_) {
        texts.index = static_cast<int>(fields.size());
        fields.emplace_back(*this, texts, format.*standard);
    }
    return fields;
}

}  // namespace swiftroll
