#pragma once

#include <deque>

#include "app/application.h"
#include "extract/families_to_save.h"
#include "extract/record_lines.h"
#include "extract/record_source.h"
#include "tables/keyed_collection.h"

namespace swiftroll::modSaveGed {

/// Writes a GEDCOM file of the marked individuals, with the families that tie them together and every record
/// that these refer to. Records are copied byte for byte out of the file that was read last, by the ranges
/// that the reader kept; only family records are touched, so that none points at somebody who was left out.
class ExtractWriter {
  public:
    /// `lines` knows the ranges of the records; `in` is the file that it read, `out` the extract.
    ExtractWriter(Application& app, const modReadGedcom::LineReader& lines, std::unique_ptr<File> in,
                  File& out);

    /// Writes everything. @throws Failure when a file fails, or when a record refers to one that the file
    /// does not have; what was written until then stays
    void Write();
    /// Brings what was written so far into the file. @throws Failure FileAccess
    void Flush();

    /// Number of individuals and families written.
    std::int32_t Individuals() const { return individuals_; }
    std::int32_t Families() const { return families_; }

  private:
    void OutGedTag(const RecordRange& range);
    void OutIndividuals();
    void OutWithNeighbours(const RecordRange& range);
    void OutRun();
    void OutFamilies();
    /// A record of a family, and its place in `familyRecords_`.
    struct Piece {
        RecordRange range;
        std::size_t place;
    };
    void ReadRecords(std::vector<Piece>& pieces, std::size_t total);
    /// `records` are those of the families that are written whole, from this one on.
    void OutGedFamilyTag(const FamiliesToSave::Entry& family, TextView& records);
    void OutReferencedRecords();
    void NoteReferences(TextView sRecord);
    void OutRecord(TextView sRecord);
    void Out(TextView bytes);
    void Write(TextView bytes);

    Application& app_;
    const modReadGedcom::LineReader& lines_;
    RecordSource source_;
    File& out_;
    Text buffer_;
    std::vector<RecordRange> run_;  // to be copied, each behind the one before
    FamiliesToSave colFamToSave_;
    std::deque<Text> colTagsToSave_;
    KeyedCollection<bool> sTagsSeen_;  // records are found whatever the case, and so are these
    Text familyRecords_;
    Text reduced_;            // a family without some members, kept for its memory
    bool isWriting_ = false;  // what is in the buffer is being written
    std::int32_t individuals_ = 0, families_ = 0;
};

}  // namespace swiftroll::modSaveGed
