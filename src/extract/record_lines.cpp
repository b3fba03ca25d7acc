#include "extract/record_lines.h"

#include <algorithm>
#include <cstdint>

namespace swiftroll::modSaveGed {
namespace {

constexpr std::size_t kTagLength = 4;

/// A tag of four characters as a number, which compares at once.
using TagCode = std::uint32_t;
constexpr TagCode CodeOf(TextView tag) {
    TagCode code = 0;
    for (std::size_t i = 0; i < kTagLength; ++i) code = code << 8 | static_cast<unsigned char>(tag[i]);
    return code;
}
constexpr TagCode kNoTag = 0;
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

/// What stands before the value of a line: a level at the head of the line, and a tag of four characters.
struct LineHead {
    TagCode tag = kNoTag;
    std::size_t line = 0;  // where the line begins
    TextView level;
};

/// The head of the line whose value begins at a place; without a tag when there is none such.
LineHead HeadBefore(TextView record, std::size_t at) {
    constexpr std::size_t kLeast = kTagLength + 3;  // a digit and two blanks
    if (at < kLeast || record[at - 1] != ' ') return {};
    const std::size_t tag = at - 1 - kTagLength;
    std::size_t i = tag;
    while (i > 0 && record[i - 1] == ' ') --i;
    const std::size_t levelEnd = i;
    while (i > 0 && IsDigit(record[i - 1])) --i;
    if (levelEnd == tag || i == levelEnd) return {};
    const TextView level = record.substr(i, levelEnd - i);
    while (i > 0 && record[i - 1] == ' ') --i;
    if (i > 0 && !IsLineEnd(record[i - 1])) return {};
    return {CodeOf(record.substr(tag, kTagLength)), i, level};
}

/// Calls `visit(head, reference)` for the lines of a record whose value is a reference. "@" is rare beside
/// all the rest of a record.
template <class Visitor>
void VisitReferences(TextView record, Visitor visit) {
    for (std::size_t at = record.find('@'); at != TextView::npos; at = record.find('@', at + 1)) {
        const LineHead head = HeadBefore(record, at);
        if (head.tag == kNoTag) continue;
        const TextView reference = ReferenceAt(record, at);
        if (reference.empty()) continue;
        visit(head, reference);
        at += reference.size() - 1;
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
    VisitReferences(sRecord, [&](const LineHead& head, TextView reference) {
        const auto* const tag = std::find(std::begin(sRefTags), std::end(sRefTags), head.tag);
        if (tag == std::end(sRefTags)) return;
        const auto place = static_cast<std::size_t>(reference.data() - sRecord.data());
        found.push_back({static_cast<int>(tag - std::begin(sRefTags)),
                         sRecord.substr(place - 1 - kTagLength, kTagLength + 1 + reference.size())});
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
    VisitReferences(sRecord, [&](const LineHead& head, TextView reference) {
        const bool isMember = head.level == "1" && std::find(std::begin(kMemberTags), std::end(kMemberTags),
                                                             head.tag) != std::end(kMemberTags);
        if (!isMember || isKept(reference)) return;
        kept += sRecord.substr(copied, head.line - copied);
        copied = EndOfLine(sRecord, head.line);
    });
    if (copied == 0) return sRecord;
    kept += sRecord.substr(copied);
    return kept;
}

}  // namespace swiftroll::modSaveGed
