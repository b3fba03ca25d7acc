#include "extract/extract_writer.h"

#include <algorithm>

#include "tables/column_numbers.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::modSaveGed {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 18;
constexpr std::int64_t kLongestRun = std::int64_t{1} << 20;

/// The tag of a member's line by the type of the membership; a type that only the individual told is a tag.
TextView RoleOf(TextView type) {
    if (type == "Fils" || type == "Fille" || type == "Enfant") return "CHIL";
    if (type == "Epoux") return "HUSB";
    if (type == "Epouse") return "WIFE";
    return type;
}

}  // namespace

ExtractWriter::ExtractWriter(Application& app, const modReadGedcom::LineReader& lines,
                             std::unique_ptr<File> in, File& out)
    : app_(app),
      lines_(lines),
      source_(std::move(in), app.cboGedIn.Get()),
      out_(out),
      colFamToSave_(app.lvwFamily, app.lvwFamilyXref) {
    buffer_.reserve(kBufferSize);
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
        OutWithNeighbours(RangeOfTag(person.Tag()));
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
    const TextView records = source_.Read({start, run_.back().end});
    for (const RecordRange& range : run_) {
        NoteReferences(records.substr(static_cast<std::size_t>(range.start - start), LengthOf(range)));
    }
    OutRecord(records);
    run_.clear();
}

/// Families are written in an order that is not that of the file: some megabytes of them at a time are read
/// in the order of the file before they are written.
void ExtractWriter::OutFamilies() {
    constexpr std::size_t kAtATime = std::size_t{1} << 24;
    colFamToSave_.Arrange();
    for (std::size_t first = 0; first < colFamToSave_.Count();) {
        std::vector<Piece> pieces;
        std::size_t total = 0, last = first;
        for (; last < colFamToSave_.Count() && total < kAtATime; ++last) {
            const FamiliesToSave::Entry family = colFamToSave_[last];
            if (!family.bFull) continue;
            pieces.push_back({family.range, total});
            total += LengthOf(family.range);
        }
        ReadRecords(pieces, total);
        TextView records = familyRecords_;
        for (; first < last; ++first) OutGedFamilyTag(colFamToSave_[first], records);
    }
}

void ExtractWriter::ReadRecords(std::vector<Piece>& pieces, std::size_t total) {
    std::sort(pieces.begin(), pieces.end(),
              [](const Piece& a, const Piece& b) { return a.range.start < b.range.start; });
    familyRecords_.resize(total);
    for (const Piece& piece : pieces) {
        const TextView record = source_.Read(piece.range);
        std::copy(record.begin(), record.end(),
                  familyRecords_.begin() + static_cast<std::ptrdiff_t>(piece.place));
    }
}

/// A family with both spouses keeps all that is told of it. Another one is reduced to its links: what was
/// told of the couple is not for those who are left.
void ExtractWriter::OutGedFamilyTag(const FamiliesToSave::Entry& family, TextView& records) {
    if (IsEmpty(family.range)) return;
    TextStore& store = app_.lvwFamily.Store();
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
        OutRecord(record);
        return;
    }
    Out(Concat({"0 ", store.Get(family.sFam), " FAM", kLineEnd}));
    for (const auto& [rank, type] : family.sIndis) {
        Out(Concat(
            {"1 ", RoleOf(store.Get(type)), " ", store.Get(colFamToSave_.Individual(rank)), kLineEnd}));
    }
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
    if (buffer_.size() + bytes.size() > kBufferSize) Flush();
    if (bytes.size() > kBufferSize)
        Write(bytes);
    else
        buffer_ += bytes;
}

void ExtractWriter::Flush() {
    Write(buffer_);
    buffer_.clear();
}

void ExtractWriter::Write(TextView bytes) {
    // What could not be written is not tried again.
    if (std::exchange(isWriting_, true)) return;
    out_.Write(bytes);
    isWriting_ = false;
}

}  // namespace swiftroll::modSaveGed
