#include "extract/extract_writer.h"

#include <algorithm>

#include "tables/column_numbers.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modSaveGed {

using modReadGedcom::RecordRange;

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20;

}  // namespace

std::optional<RecordRange> RangeOfTag(TextView sTag) {
    const std::size_t blank = sTag.find(' ');
    if (blank == TextView::npos || sTag.find(' ', blank + 1) != TextView::npos) return std::nullopt;
    return RecordRange{ToLong(sTag.substr(0, blank)), ToLong(sTag.substr(blank + 1))};
}

ExtractWriter::ExtractWriter(Application& app, const modReadGedcom::LineReader& lines,
                             std::unique_ptr<File> in, File& out)
    : app_(app),
      lines_(lines),
      source_(std::move(in), app.cboGedIn.Get()),
      out_(out),
      colFamToSave_(app.lvwFamilyXref) {
    buffer_.reserve(2 * kBufferSize);
}

void ExtractWriter::Write() {
    if (lines_.head.end != 0) OutGedTag(lines_.head);
    if (lines_.subn.end != 0) OutGedTag(lines_.subn);
    OutIndividuals();
    OutFamilies();
    OutReferencedRecords();
    Out(Concat({"0 TRLR", kLineEnd}));
    Flush();
}

void ExtractWriter::OutIndividuals() {
    for (std::int32_t i = 1; i <= app_.lvwIn.Count(); ++i) {
        const Row person = app_.lvwIn.Item(i);
        if (!person.Marked()) continue;
        colFamToSave_.AddFamToSave(person.Ref(In::ID));
        if (const auto range = RangeOfTag(person.Tag())) OutGedTag(*range);
        ++individuals_;
    }
}

/// Families are written in an order that is not that of the file: some thousands of them at a time are read
/// in the order of the file before they are written.
void ExtractWriter::OutFamilies() {
    constexpr std::size_t kAtATime = std::size_t{1} << 17, kLookAhead = 8;
    colFamToSave_.Arrange();
    for (std::size_t first = 0; first < colFamToSave_.Count(); first += kAtATime) {
        const std::size_t last = std::min(first + kAtATime, colFamToSave_.Count());
        std::vector<FamilyToWrite> families;
        families.reserve(last - first);
        for (std::size_t i = first; i < last; ++i) {
            if (i + kLookAhead < last) app_.lvwFamily.Prefetch(RowKey(colFamToSave_[i + kLookAhead].sFam));
            families.push_back(Prepare(colFamToSave_[i]));
        }
        ReadRecords(families);
        for (const FamilyToWrite& family : families) OutGedFamilyTag(family);
    }
}

ExtractWriter::FamilyToWrite ExtractWriter::Prepare(const FamiliesToSave::Entry& entry) {
    const auto family = app_.lvwFamily.Find(RowKey(entry.sFam));
    if (!family) throw Failure(FailureKind::KeyNotFound, app_.lvwFamily.Store().Get(entry.sFam));
    const auto isMarkedSpouse = [&](std::int16_t column) {
        const TextRef spouse = family->Ref(column);
        return !spouse.IsEmpty() &&
               std::find(entry.sIndis.begin(), entry.sIndis.end(), spouse) != entry.sIndis.end();
    };
    const int spouses = (isMarkedSpouse(Family::IDHusb) ? 1 : 0) + (isMarkedSpouse(Family::IDWife) ? 1 : 0) +
                        (isMarkedSpouse(Family::IDFams) ? 1 : 0);
    return {entry, RangeOfTag(family->Tag()), spouses >= 2, 0, 0};
}

void ExtractWriter::ReadRecords(std::vector<FamilyToWrite>& families) {
    std::vector<FamilyToWrite*> inFileOrder;
    for (FamilyToWrite& family : families) {
        if (family.bFull && family.range) inFileOrder.push_back(&family);
    }
    std::sort(inFileOrder.begin(), inFileOrder.end(), [](const FamilyToWrite* a, const FamilyToWrite* b) {
        return a->range->start < b->range->start;
    });
    familyRecords_.clear();
    for (FamilyToWrite* family : inFileOrder) {
        const TextView record = source_.Read(*family->range);
        family->place = familyRecords_.size();
        family->length = record.size();
        familyRecords_ += record;
    }
}

/// A family with both spouses keeps all that is told of it. Another one is reduced to its links: what was
/// told of the couple is not for those who are left.
void ExtractWriter::OutGedFamilyTag(const FamilyToWrite& family) {
    if (!family.range) return;
    TextStore& store = app_.lvwFamily.Store();
    const FamiliesToSave::Entry& entry = family.entry;
    ++families_;
    if (family.bFull) {
        const auto isMember = [&](TextView sId) {
            return std::any_of(entry.sIndis.begin(), entry.sIndis.end(),
                               [&](TextRef member) { return store.Get(member) == sId; });
        };
        const TextView whole = TextView(familyRecords_).substr(family.place, family.length);
        const TextView record = entry.isComplete ? whole : RemoveIndis(whole, isMember, reduced_);
        NoteReferences(record);
        OutRecord(record);
        return;
    }
    Out(Concat({"0 ", store.Get(entry.sFam), " FAM", kLineEnd}));
    for (const TextRef sIndi : entry.sIndis) {
        Out(Concat({"1 ", RoleOf(entry, sIndi), " ", store.Get(sIndi), kLineEnd}));
    }
}

TextView ExtractWriter::RoleOf(const FamiliesToSave::Entry& entry, TextRef sIndi) {
    const auto member = app_.lvwFamilyXref.Find(RowKey(entry.sFam, sIndi));
    if (!member) throw Failure(FailureKind::KeyNotFound, app_.lvwFamily.Store().Get(sIndi));
    const TextView type = member->Cell(FamilyXref::Type);
    if (type == "Fils" || type == "Fille" || type == "Enfant") return "CHIL";
    if (type == "Epoux") return "HUSB";
    if (type == "Epouse") return "WIFE";
    return type;
}

void ExtractWriter::OutReferencedRecords() {
    for (; !colTagsToSave_.empty(); colTagsToSave_.pop_front()) {
        const auto range = lines_.colRecords().Find(colTagsToSave_.front());
        if (!range) {
            throw Failure(FailureKind::KeyNotFound,
                          Concat({colTagsToSave_.front(), " : cet enregistrement manque dans le fichier"_t}));
        }
        OutGedTag(*range);
    }
}

void ExtractWriter::OutGedTag(const RecordRange& range) {
    const TextView record = source_.Read(range);
    NoteReferences(record);
    OutRecord(record);
}

void ExtractWriter::NoteReferences(TextView sRecord) {
    for (const Reference& reference : FindOutTags(sRecord)) {
        if (!sTagsSeen_.Add(reference.key, true)) continue;
        // The submission stands behind the head already, whoever refers to it.
        if (lines_.subn.end != 0 && lines_.colRecords().Find(reference.key) == lines_.subn) continue;
        colTagsToSave_.emplace_back(reference.key);
    }
}

/// The last line of a file may have no line end; what follows it in the extract must be a line of its own.
void ExtractWriter::OutRecord(TextView sRecord) {
    Out(sRecord);
    if (!sRecord.empty() && kLineEnd.find(sRecord.back()) == TextView::npos) Out(kLineEnd);
}

void ExtractWriter::Out(TextView bytes) {
    buffer_ += bytes;
    if (buffer_.size() >= kBufferSize) Flush();
}

void ExtractWriter::Flush() {
    // A buffer that could not be written is not tried again.
    if (std::exchange(isWriting_, true)) return;
    out_.Write(buffer_);
    buffer_.clear();
    isWriting_ = false;
}

}  // namespace swiftroll::modSaveGed
