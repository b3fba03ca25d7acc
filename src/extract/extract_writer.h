#pragma once

#include <deque>
#include <future>
#include <memory>

#include "extract/background_writer.h"
#include "extract/families_to_save.h"
#include "extract/record_lines.h"
#include "extract/record_source.h"
#include "tables/keyed_collection.h"

namespace swiftroll::modSaveGed {

/// Writes a GEDCOM file of the marked individuals, with the families that tie them together and every record
/// that these refer to. Records are copied byte for byte out of the file that was read last, by the ranges
/// that the reader kept; only family records are touched, so that none points at somebody who was left out.
/// Of those who are hidden as living, and of families of two of them, only the links are told.
/// The extract of a file in UTF-16 is UTF-8, and its head says so.
class ExtractWriter {
  public:
    /// The file that was read, open twice: families are read while individuals are copied.
    struct Input {
        std::unique_ptr<File> records, families;
    };
    /// `lines` knows the ranges of the records of the input, whose name is `sGedIn`; `out` is the extract.
    ExtractWriter(TableSet& tables, const modPrivacy::Living& living, const modReadGedcom::LineReader& lines,
                  TextView sGedIn, Input in, File& out);

    /// Writes everything but the records that the file does not have. @throws Failure when a file fails; what
    /// was written until then stays
    void Write();
    /// The records that were referred to and are not in the file, each once: their tag, a blank and their
    /// cross-reference. `names` are the first of them.
    struct MissingRecords {
        static constexpr std::size_t kMostNames = 10;
        std::size_t count = 0;
        std::vector<Text> names;
    };
    const MissingRecords& Missing() const { return missing_; }
    /// Brings what was written so far into the file. @throws Failure FileAccess
    void Finish() { out_.Finish(); }

    /// Number of individuals and families written.
    std::int32_t Individuals() const { return individuals_; }
    std::int32_t Families() const { return families_; }

  private:
    void OutGedTag(const RecordRange& range);
    TextView Copy(const RecordRange& range);
    void OutHead();
    void OutIndividuals();
    void OutWithNeighbours(const RecordRange& range);
    void OutRun();
    /// The families from `first` up to `last`, which is not one of them, and the records of those that are
    /// written whole, one behind the other.
    struct FamilyBatch {
        std::size_t first, last;
        std::unique_ptr<char[]> bytes;
        TextView records;  // in `bytes`
    };
    void OutFamilies(std::future<FamilyBatch> reading);
    FamilyBatch ReadFamilies(std::size_t first);
    /// `records` are those of the families that are written whole, from this one on.
    void OutGedFamilyTag(const FamiliesToSave::Entry& family, TextView& records);
    void OutReferencedRecords();
    void NoteMissing(TextView sKey);
    void NoteReferences(TextView sRecord);
    void EndLine(TextView sRecord);

    TableSet& tables_;
    const modPrivacy::Living& living_;
    const modReadGedcom::LineReader& lines_;
    RecordSource source_, familySource_;
    BackgroundWriter out_;
    std::vector<RecordRange> run_;  // to be copied, each behind the one before
    FamiliesToSave colFamToSave_;
    std::deque<Text> colTagsToSave_;
    TextStore references_;             // seen so far, as they were written
    KeyedCollection<bool> sTagsSeen_;  // records are found whatever the case, and so are these
    MissingRecords missing_;
    Text sKey_, reduced_;  // reused to avoid allocation
    std::int32_t individuals_ = 0, families_ = 0;
};

}  // namespace swiftroll::modSaveGed
