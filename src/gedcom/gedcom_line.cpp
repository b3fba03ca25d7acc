#include "gedcom/gedcom_line.h"

#include <algorithm>
#include <limits>

#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {

TextView GetXrefDef(TextView sText) {
    if (!sText.starts_with('@')) return {};
    const auto end = sText.find('@', 1);
    return end == TextView::npos ? sText : sText.substr(0, end + 1);
}

TextView GetXrefUsed(TextView sText) {
    sText = Trim(sText);
    return sText.starts_with('@') && sText.ends_with('@') ? sText : TextView();
}

std::optional<FailureKind> GedcomLine::Split() {
    hasOneDigit = true;
    if (sLine.size() > 1 && sLine[1] == ' ' && sLine[0] >= '0' && sLine[0] <= '9') {
        iLevel = static_cast<std::int16_t>(sLine[0] - '0');
        TakeFields(sLine.substr(2));
        return std::nullopt;
    }
    // Number of characters up to and with the first blank. Removed junk lowers it, so that junk with a blank
    // in it leaves nothing to take a level from.
    auto p = static_cast<std::int64_t>(sLine.find(' ') + 1);
    const auto digit = std::min(sLine.find_first_of("0123456789"), sLine.size());
    sLine.remove_prefix(digit);
    p -= static_cast<std::int64_t>(digit);
    if (p == 0 && sLine.empty()) {
        // Junk and one blank at its end: a line that says nothing, at the level of the one before.
        sXrefDef = sTag = sValue = {};
        return std::nullopt;
    }
    if (p < 0 || sLine.empty()) return FailureKind::InvalidArgument;
    const TextView level = sLine.substr(0, static_cast<std::size_t>(std::max<std::int64_t>(p - 1, 0)));
    if (level.empty() || level.find_first_not_of("0123456789") != TextView::npos)
        return FailureKind::TypeMismatch;
    const auto number = ParseDecimal(level);
    if (!number || *number > std::numeric_limits<std::int16_t>::max()) return FailureKind::Overflow;
    iLevel = static_cast<std::int16_t>(*number);
    TakeFields(sLine.substr(static_cast<std::size_t>(p)));
    hasOneDigit = p <= 2;
    return std::nullopt;
}

/// Takes cross-reference, tag and value from what stands behind the level.
void GedcomLine::TakeFields(TextView rest) {
    sXrefDef = rest.starts_with('@') ? GetXrefDef(rest) : TextView();
    rest.remove_prefix(sXrefDef.size());
    sLine = rest.starts_with(' ') ? TrimLeft(rest) : rest;
    const char* const end = sLine.data() + sLine.size();
    const char* blank = sLine.data();
    while (blank != end && *blank != ' ') ++blank;
    sTag = {sLine.data(), static_cast<std::size_t>(blank - sLine.data())};
    sValue = blank == end ? TextView() : TextView(blank + 1, static_cast<std::size_t>(end - blank - 1));
}

}  // namespace swiftroll::modReadGedcom
