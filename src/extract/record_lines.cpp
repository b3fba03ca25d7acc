#include "extract/record_lines.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "text/edit.h"

namespace swiftroll::modSaveGed {
namespace {

constexpr TextView sRefTags[] = {"OBJE", "NOTE", "REPO", "SOUR", "SUBM", "SUBN"};
constexpr std::size_t kTagLength = 4;
constexpr TextView kLineEnds = "\r\n";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A reference at a place of a record, if the line has nothing else behind it; empty otherwise.
TextView ReferenceAt(TextView record, std::size_t at) {
    const std::size_t end = record.find_first_of("@\r\n", at + 1);
    if (end == TextView::npos || record[end] != '@' || end == at + 1) return {};
    const std::size_t rest = record.find_first_not_of(' ', end + 1);
    if (rest != TextView::npos && kLineEnds.find(record[rest]) == TextView::npos) return {};
    return record.substr(at, end + 1 - at);
}

/// The tag of the line whose value begins at a place: what stands between a level at the head of the line and
/// one blank. Empty when there is no such tag of four characters.
TextView TagBefore(TextView record, std::size_t at) {
    constexpr std::size_t kLeast = kTagLength + 3;  // a digit and two blanks
    if (at < kLeast || record[at - 1] != ' ') return {};
    const std::size_t tag = at - 1 - kTagLength;
    std::size_t i = tag;
    while (i > 0 && record[i - 1] == ' ') --i;
    const std::size_t levelEnd = i;
    while (i > 0 && IsDigit(record[i - 1])) --i;
    if (levelEnd == tag || i == levelEnd) return {};
    while (i > 0 && record[i - 1] == ' ') --i;
    if (i > 0 && kLineEnds.find(record[i - 1]) == TextView::npos) return {};
    return record.substr(tag, kTagLength);
}

/// The end of the line that begins at a place, its line end included.
std::size_t EndOfLine(TextView record, std::size_t line) {
    const std::size_t end = record.find_first_of(kLineEnds, line);
    if (end == TextView::npos) return record.size();
    return record.substr(end, 2) == kLineEnds ? end + 2 : end + 1;
}

/// The value of a line of level 1 with the tag of a family member, if it is a reference.
TextView MemberOf(TextView line) {
    const std::size_t level = line.find_first_not_of(' ');
    if (level == TextView::npos || line[level] != '1') return {};
    const std::size_t at = line.find('@');
    if (at == TextView::npos) return {};
    const TextView tag = TagBefore(line, at);
    if (tag != "HUSB" && tag != "WIFE" && tag != "CHIL") return {};
    return line.substr(level + 1, 1) == " " ? ReferenceAt(line, at) : TextView();
}

}  // namespace

std::vector<ReferenceKey> FindOutTags(TextView sRecord) {
    std::array<std::vector<ReferenceKey>, std::size(sRefTags)> found;
    bool any = false;
    // "@" is rare beside all the rest of a record.
    for (std::size_t at = sRecord.find('@'); at != TextView::npos; at = sRecord.find('@', at + 1)) {
        const TextView tag = TagBefore(sRecord, at);
        const auto* const place = std::find(std::begin(sRefTags), std::end(sRefTags), tag);
        if (tag.empty() || place == std::end(sRefTags)) continue;
        const TextView reference = ReferenceAt(sRecord, at);
        if (reference.empty()) continue;
        found[static_cast<std::size_t>(place - std::begin(sRefTags))].push_back(
            Concat({tag, " ", reference}));
        any = true;
        at += reference.size() - 1;
    }
    std::vector<ReferenceKey> keys;
    for (std::size_t tag = 0; any && tag < found.size(); ++tag) {
        keys.insert(keys.end(), found[tag].begin(), found[tag].end());
    }
    return keys;
}

Text RemoveIndis(TextView sRecord, const std::function<bool(TextView sId)>& isKept) {
    Text kept;
    kept.reserve(sRecord.size());
    for (std::size_t line = 0; line < sRecord.size();) {
        const std::size_t end = EndOfLine(sRecord, line);
        const TextView text = sRecord.substr(line, end - line);
        const TextView member = MemberOf(text);
        if (member.empty() || isKept(member)) kept += text;
        line = end;
    }
    return kept;
}

}  // namespace swiftroll::modSaveGed
