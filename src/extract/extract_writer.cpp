#include "extract/extract_writer.h"

#include <algorithm>

#include "extract/head_charset.h"
#include "extract/private_record.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::modSaveGed {

namespace {

constexpr std::int64_t kLongestRun = std::int64_t{1} << 20;

/// The tag of a member's line by the type of the membership; a type that only the individual told is a tag.
TextView RoleOf(TextView type) {
    if (type == "Fils" || type == "Fille" || type == "Enfant") return "CHIL";
    if (type == "Epoux") return "HUSB";
    if (type == "Epouse") return "WIFE";
    return type;
}

}  // namespace

ExtractWriter::ExtractWriter(TableSet& tables, const modPrivacy::Living& living,
                             const modReadGedcom::LineReader& lines, TextView sGedIn, Input in, File& out)
    : tables_(tables),
      living_(living),
      lines_(lines),
      source_(std::move(in.records), sGedIn),
      familySource_(std::move(in.families), sGedIn),
      out_(out),
      colFamToSave_(tables, living) {}

void ExtractWriter::Write() {
    OutHead();
    if (lines_.subn.end != 0) OutGedTag(lines_.subn);
    // The families are put in order while the individuals are copied: both only read the tables.
    auto families = std::async(std::launch::async, [this] {
        colFamToSave_.Arrange();
        return ReadFamilies(0);
    });
    OutIndividuals();
    OutFamilies(std::move(families));
    for (const TextRef sFam : colFamToSave_.Missing())
        NoteMissing(Concat({"FAM ", tables_.lvwFamily.Store().Get(sFam)}));
    OutReferencedRecords();
    out_.Write(Concat({"0 TRLR", kLineEnd}));
    out_.Finish();
}

/// The head of UTF-16 says what the extract of it is.
void ExtractWriter::OutHead() {
    const charset::FoundCharset* const found = lines_.FoundCharset();
    if (found == nullptr || !found->IsUtf16()) {
        if (lines_.head.end != 0) OutGedTag(lines_.head);
        return;
    }
    out_.Write(kUtf8Mark);
    const Text head = DeclareUtf8(source_.Read(lines_.head));
    NoteReferences(head);
    out_.Write(head);
    EndLine(head);
}

void ExtractWriter::OutIndividuals() {
    for (std::int32_t i = 1; i <= tables_.lvwIn.Count(); ++i) {
        const Row person = tables_.lvwIn.Item(i);
        if (!person.Marked()) continue;
        const RecordRange range = RangeOfTag(person.Tag());
        if (living_.IsLiving(person)) {
            OutRun();
            out_.Write(PrivateRecord(source_.Read(range), person.Text()));
        } else {
            OutWithNeighbours(range);
        }
        ++individuals_;
    }
    OutRun();
}

/// Records that follow each other in the file are copied at once.
void ExtractWriter::OutWithNeighbours(const RecordRange& range) {
    if (IsEmpty(range)) return;
    const bool follows = !run_.empty() && run_.back().end == range.start;
    if (!run_.empty() && (!follows || range.end - run_.front().start > kLongestRun)) OutRun();
    run_.push_back(range);
}

void ExtractWriter::OutRun() {
    if (run_.empty()) return;
    const std::int64_t start = run_.front().start;
    const TextView records = Copy({start, run_.back().end});
    for (const RecordRange& range : run_) {
        NoteReferences(records.substr(static_cast<std::size_t>(range.start - start), LengthOf(range)));
    }
    EndLine(records);
    run_.clear();
}

/// Families are written in an order that is not that of the file: some 64 MB of them at a time are read in
/// the order of the file, while those before them are written.
void ExtractWriter::OutFamilies(std::future<FamilyBatch> reading) {
    while (reading.valid()) {
        const FamilyBatch batch = reading.get();
        if (batch.last < colFamToSave_.Count()) {
            reading =
                std::async(std::launch::async, [this, next = batch.last] { return ReadFamilies(next); });
        }
        TextView records = batch.records;
        for (std::size_t i = batch.first; i < batch.last; ++i) OutGedFamilyTag(colFamToSave_[i], records);
    }
}

ExtractWriter::FamilyBatch ExtractWriter::ReadFamilies(std::size_t first) {
    // The families of a batch lie all over the file, whose pages are read again for each batch.
    constexpr std::size_t kAtATime = std::size_t{1} << 26;
    FamilyBatch batch{first, first, {}, {}};
    struct Piece {
        RecordRange range;
        std::size_t place;
    };
    std::vector<Piece> pieces;
    std::size_t total = 0;
    for (; batch.last < colFamToSave_.Count() && total < kAtATime; ++batch.last) {
        const FamiliesToSave::Entry family = colFamToSave_[batch.last];
        if (!family.bFull) continue;
        pieces.push_back({family.range, total});
        total += LengthOf(family.range);
    }
    std::sort(pieces.begin(), pieces.end(),
              [](const Piece& a, const Piece& b) { return a.range.start < b.range.start; });
    batch.bytes = std::make_unique_for_overwrite<char[]>(total);
    batch.records = {batch.bytes.get(), total};
    for (const Piece& piece : pieces) familySource_.ReadInto(piece.range, batch.bytes.get() + piece.place);
    return batch;
}

/// A family with both spouses keeps all that is told of it. Another one is reduced to its links: what was
/// told of the couple is not for those who are left.
void ExtractWriter::OutGedFamilyTag(const FamiliesToSave::Entry& family, TextView& records) {
    if (IsEmpty(family.range)) return;
    TextStore& store = tables_.lvwFamily.Store();
    ++families_;
    if (family.bFull) {
        const auto isMember = [&](TextView sId) {
            return std::any_of(family.sIndis.begin(), family.sIndis.end(),
                               [&](const FamiliesToSave::Member& member) {
                                   return store.Get(colFamToSave_.Individual(member.rank)) == sId;
                               });
        };
        const TextView whole = records.substr(0, LengthOf(family.range));
        records.remove_prefix(whole.size());
        const TextView record = family.isComplete ? whole : RemoveIndis(whole, isMember, reduced_);
        NoteReferences(record);
        out_.Write(record);
        EndLine(record);
        return;
    }
    out_.Write(Concat({"0 ", store.Get(family.sFam), " FAM", kLineEnd}));
    for (const auto& [rank, type] : family.sIndis) {
        out_.Write(Concat(
            {"1 ", RoleOf(store.Get(type)), " ", store.Get(colFamToSave_.Individual(rank)), kLineEnd}));
    }
}

void ExtractWriter::OutReferencedRecords() {
    for (; !colTagsToSave_.empty(); colTagsToSave_.pop_front()) {
        const auto range = lines_.colRecords().Find(colTagsToSave_.front());
        if (range) {
            OutGedTag(*range);
        } else {
            NoteMissing(colTagsToSave_.front());
        }
    }
}

void ExtractWriter::NoteMissing(TextView sKey) {
    if (++missing_.count <= MissingRecords::kMostNames) missing_.names.emplace_back(sKey);
}

void ExtractWriter::OutGedTag(const RecordRange& range) {
    const TextView record = Copy(range);
    NoteReferences(record);
    EndLine(record);
}

/// Copies a range; the view of it is valid until something more is written.
TextView ExtractWriter::Copy(const RecordRange& range) {
    const std::size_t length = LengthOf(range);
    char* const place = out_.Room(length);
    source_.ReadInto(range, place);
    out_.Take(length);
    return {place, length};
}

void ExtractWriter::NoteReferences(TextView sRecord) {
    for (const auto& [rank, sTag, sXref] : FindOutTags(sRecord)) {
        sKey_.assign(sTag).append(1, ' ').append(sXref);
        // Most references come again in the same letters, which costs less to see.
        const std::size_t known = references_.InternedCount();
        references_.Intern(sKey_);
        if (references_.InternedCount() == known || !sTagsSeen_.Add(sKey_, true)) continue;
        // The submission stands behind the head already, whoever refers to it.
        if (lines_.subn.end != 0 && lines_.colRecords().Find(sKey_) == lines_.subn) continue;
        colTagsToSave_.emplace_back(sKey_);
    }
}

/// The last line of a file may have no line end; what follows it in the extract must be a line of its own.
void ExtractWriter::EndLine(TextView sRecord) {
    if (!sRecord.empty() && kLineEnd.find(sRecord.back()) == TextView::npos) out_.Write(kLineEnd);
}

}  // namespace swiftroll::modSaveGed
