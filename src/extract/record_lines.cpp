#include "extract/record_lines.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "gedcom/gedcom_line.h"
#include "gedcom/tag.h"
#include "text/edit.h"

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
template <std::size_t kCount>
constexpr std::array<TagCode, kCount> CodesOf(const TextView (&tags)[kCount]) {
    std::array<TagCode, kCount> codes{};
    for (std::size_t i = 0; i < kCount; ++i) codes[i] = CodeOf(tags[i]);
    return codes;
}
constexpr auto sRefTags = CodesOf(modReadGedcom::kReferredTags);
constexpr auto kMemberTags = std::to_array({CodeOf("HUSB"), CodeOf("WIFE"), CodeOf("CHIL")});

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

/// The place in `tags` of the tag before a value that begins at `at`, if it is one of them; what stands
/// before the tag is not looked at.
template <std::size_t kCount>
const TagCode* TagBefore(TextView record, std::size_t at, const std::array<TagCode, kCount>& tags) {
    std::size_t end = at;
    while (end > 0 && record[end - 1] == ' ') --end;
    if (end == at || end < kTagLength) return nullptr;
    const auto tag = std::find(tags.begin(), tags.end(), CodeOf(record.substr(end - kTagLength)));
    return tag == tags.end() ? nullptr : &*tag;
}

/// The value of a line, if it is a reference and nothing else: "@", one character or more, "@".
TextView ReferenceOf(const modReadGedcom::GedcomLine& line) {
    const TextView reference = modReadGedcom::GetXrefUsed(line.sValue);
    return reference.size() > 2 && reference.find('@', 1) == reference.size() - 1 ? reference : TextView();
}

/// Where the line of a place begins, and where it ends, without its line end.
struct Bounds {
    std::size_t begin, end;
};
Bounds LineAround(TextView record, std::size_t at) {
    Bounds line{at, at};
    while (line.begin > 0 && !IsLineEnd(record[line.begin - 1])) --line.begin;
    while (line.end < record.size() && !IsLineEnd(record[line.end])) ++line.end;
    return line;
}

/// Whether the value of a line with a level of one digit and a tag of four characters begins at `at`, with
/// nothing out of the ordinary before it.
bool BeginsPlainValue(TextView record, std::size_t at) {
    constexpr std::size_t kHead = kTagLength + 3;
    if (at < kHead || record[at - 1] != ' ' || record[at - kTagLength - 2] != ' ') return false;
    const char level = record[at - kHead];
    return level >= '0' && level <= '9' && (at == kHead || IsLineEnd(record[at - kHead - 1]));
}

/// Calls `visit(line, begin, rank)` for the lines of a record with one of the tags whose value is a
/// reference; the rank is that of the tag. "@" is rare beside all the rest of a record, and few stand behind
/// one of the tags: only their lines are split. Between an "@" of any kind and one that begins a value stand
/// at least a tag and a blank, and behind one that begins a value a line end and a whole head, which the
/// search leaps over. No line is split twice, so that long ones cost no more.
template <std::size_t kCount, class Visitor>
void VisitReferences(TextView record, const std::array<TagCode, kCount>& tags, Visitor visit) {
    constexpr std::size_t kLeap = 1 + kTagLength + 1, kLeapOfValue = 1 + 1 + kTagLength + 3;
    std::size_t at = record.find('@');
    while (at != TextView::npos) {
        const TagCode* const tag = TagBefore(record, at, tags);
        std::size_t next = at + (BeginsPlainValue(record, at) ? kLeapOfValue : kLeap);
        if (tag != nullptr) {
            const Bounds bounds = LineAround(record, at);
            modReadGedcom::GedcomLine line;
            line.sLine = TrimLeft(record.substr(bounds.begin, bounds.end - bounds.begin));
            const bool isSplit = !line.Split();
            const bool hasTag = isSplit && line.sTag.size() == kTagLength && CodeOf(line.sTag) == *tag;
            if (hasTag && !ReferenceOf(line).empty())
                visit(line, bounds.begin, static_cast<int>(tag - tags.data()));
            next = bounds.end;
        }
        at = record.find('@', next);
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
    VisitReferences(sRecord, sRefTags, [&](const modReadGedcom::GedcomLine& line, std::size_t, int rank) {
        found.push_back({rank, line.sTag, ReferenceOf(line)});
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
    VisitReferences(sRecord, kMemberTags, [&](const modReadGedcom::GedcomLine& line, std::size_t begin, int) {
        if (line.iLevel != 1 || isKept(ReferenceOf(line))) return;
        kept += sRecord.substr(copied, begin - copied);
        copied = EndOfLine(sRecord, begin);
    });
    if (copied == 0) return sRecord;
    kept += sRecord.substr(copied);
    return kept;
}

}  // namespace swiftroll::modSaveGed
