#include "extract/record_lines.h"

#include <algorithm>
#include <cstdint>

namespace swiftroll::modSaveGed {
namespace {

constexpr std::size_t kTagLength = 4;
// What stands at least before the value of a line: a digit, a blank, a tag and a blank.
constexpr std::size_t kLeastHead = kTagLength + 3;

/// A tag of four characters as a number, which compares at once.
using TagCode = std::uint32_t;
constexpr TagCode CodeOf(TextView tag) {
    TagCode code = 0;
    for (std::size_t i = 0; i < kTagLength; ++i) code = code << 8 | static_cast<unsigned char>(tag[i]);
    return code;
}
constexpr TagCode sRefTags[] = {CodeOf("OBJE"), CodeOf("NOTE"), CodeOf("REPO"),
                                CodeOf("SOUR"), CodeOf("SUBM"), CodeOf("SUBN")};
constexpr TagCode kMemberTags[] = {CodeOf("HUSB"), CodeOf("WIFE"), CodeOf("CHIL")};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

/// A reference at a place of a record, if the line has nothing else behind it; empty otherwise.
TextView ReferenceAt(TextView record, std::size_t at) {
    std::size_t end = at + 1;
    while (end < record.size() && record[end] != '@' && !IsLineEnd(record[end])) ++end;
    if (end == record.size() || record[end] != '@' || end == at + 1) return {};
    std::size_t rest = end + 1;
    while (rest < record.size() && record[rest] == ' ') ++rest;
    if (rest < record.size() && !IsLineEnd(record[rest])) return {};
    return record.substr(at, end + 1 - at);
}

/// What stands before the tag of a line: a level at the head of the line.
struct LineHead {
    std::size_t line = 0;  // where the line begins
    TextView level;
};

/// The head of the line whose value, behind a tag of four characters, begins at a place that leaves room for
/// it; without a level when it is no such place.
LineHead HeadBefore(TextView record, std::size_t at) {
    if (record[at - 1] != ' ') return {};
    const std::size_t tag = at - 1 - kTagLength;
    std::size_t i = tag;
    while (i > 0 && record[i - 1] == ' ') --i;
    const std::size_t levelEnd = i;
    while (i > 0 && IsDigit(record[i - 1])) --i;
    if (levelEnd == tag || i == levelEnd) return {};
    const TextView level = record.substr(i, levelEnd - i);
    while (i > 0 && record[i - 1] == ' ') --i;
    if (i > 0 && !IsLineEnd(record[i - 1])) return {};
    return {i, level};
}

/// Calls `visit(head, reference, rank)` for the lines of a record with one of the tags whose value is a
/// reference; the rank is that of the tag. "@" is rare beside all the rest of a record, and most of those few
/// stand behind other tags. A value that begins with "@" is behind a line end and a head, so that the search
/// leaps over these, and thereby over the other "@" of most references.
template <std::size_t kCount, class Visitor>
void VisitReferences(TextView record, const TagCode (&tags)[kCount], Visitor visit) {
    constexpr std::size_t kLeap = 1 + 1 + kLeastHead;
    for (std::size_t at = record.find('@', kLeastHead); at != TextView::npos;
         at = record.find('@', at + kLeap)) {
        const TagCode code = CodeOf(record.substr(at - 1 - kTagLength, kTagLength));
        const auto* const tag = std::find(std::begin(tags), std::end(tags), code);
        if (tag == std::end(tags)) continue;
        const LineHead head = HeadBefore(record, at);
        if (head.level.empty()) continue;
        const TextView reference = ReferenceAt(record, at);
        if (!reference.empty()) visit(head, reference, static_cast<int>(tag - std::begin(tags)));
    }
}

/// The end of a line, its line end included.
std::size_t EndOfLine(TextView record, std::size_t line) {
    std::size_t end = line;
    while (end < record.size() && !IsLineEnd(record[end])) ++end;
    if (end == record.size()) return end;
    return record.substr(end, kLineEnd.size()) == kLineEnd ? end + kLineEnd.size() : end + 1;
}

}  // namespace

std::vector<Reference> FindOutTags(TextView sRecord) {
    std::vector<Reference> found;
    VisitReferences(sRecord, sRefTags, [&](const LineHead&, TextView reference, int rank) {
        const auto place = static_cast<std::size_t>(reference.data() - sRecord.data());
        found.push_back({rank, sRecord.substr(place - 1 - kTagLength, kTagLength + 1 + reference.size())});
    });
    if (found.size() > 1) {
        std::stable_sort(found.begin(), found.end(),
                         [](const Reference& a, const Reference& b) { return a.rank < b.rank; });
    }
    return found;
}

TextView RemoveIndis(TextView sRecord, const std::function<bool(TextView sId)>& isKept, Text& kept) {
    std::size_t copied = 0;
    kept.clear();
    VisitReferences(sRecord, kMemberTags, [&](const LineHead& head, TextView reference, int) {
        if (head.level != "1" || isKept(reference)) return;
        kept += sRecord.substr(copied, head.line - copied);
        copied = EndOfLine(sRecord, head.line);
    });
    if (copied == 0) return sRecord;
    kept += sRecord.substr(copied);
    return kept;
}

}  // namespace swiftroll::modSaveGed
