#pragma once

#include <array>
#include <memory>
#include <optional>

#include "app/application.h"
#include "charset/decoder.h"
#include "gedcom/gedcom_line.h"
#include "gedcom/line_scanner.h"
#include "tables/keyed_collection.h"

namespace swiftroll::modReadGedcom {

/// Byte range of a record: 1-based position of its level-0 line and of the next one.
struct RecordRange {
    std::int64_t start = 0;
    std::int64_t end = 0;
    friend bool operator==(const RecordRange&, const RecordRange&) = default;
};

/// The file that was read, and its state when it was opened.
struct FileRead {
    Text sFile;
    std::optional<FileStamp> stamp;  // nothing for what is no regular file
};

/// Reads a GEDCOM file line by line, and keeps the byte range of every level-0 record, so that records can be
/// copied out of the file unchanged. It is the current line, whose views are valid until the next Read1Line.
class LineReader : public GedcomLine {
  public:
    explicit LineReader(Application& app) : app_(app) {}

    /// Opens `sFile`; false after a box when it cannot be opened or is larger than positions can tell (2
    /// GiB).
    bool InitGedcom(TextView sFile);
    /// Sets positions and record ranges back for a new pass.
    void ResetRecords();
    /// Goes to the next line that holds something. 0: the line stands in the fields below. Any other value:
    /// no further line shall be taken; -1 is the end of the file or the user's abort, 1 a level of several
    /// digits.
    std::int32_t Read1Line();
    void Close() {
        scanner_.reset();
        if (decoder_ != nullptr) decoder_->Close();
    }

    /// `sValue` in Windows-1252, the character set of the tables: itself when it is ASCII, or when character
    /// sets are not converted. Valid until the next call or line. Cross-references are never converted.
    TextView DecodedValue() { return Decoded(sValue); }
    /// Takes `sValue` as the character set that the file declares; false when the text may be read wrongly.
    bool TakeCharset();
    /// What is known of the character set of the file that was opened last: the file may be closed since.
    /// Nothing when character sets are not converted.
    const charset::FoundCharset* FoundCharset() const {
        return decoder_ != nullptr ? &decoder_->Found() : nullptr;
    }
    /// The file that was opened last, twice and as it was read: positions of lines are those of its bytes. Of
    /// UTF-16 that is UTF-8, in memory. @throws Failure FileNotFound, FileAccess
    std::array<std::unique_ptr<File>, 2> OpenTwice(TextView sFile) const;

    /// The number of the current line as an editor counts, with the blank ones; 0 when the file is closed.
    std::uint32_t LineNumber() const { return scanner_ ? scanner_->LineNumber() : 0; }

    std::int32_t lNrLines = 0;
    std::int32_t lNrNames = 0;
    std::int16_t iBaseLevel = 0;
    /// Length of the file in bytes, the base of the progress.
    std::int64_t lProgressTotal = 0;

    /// The file that the ranges are of.
    const FileRead& Origin() const { return origin_; }

    // Positions of the last two level-0 lines, and so the range of the record that the last one closed.
    std::int64_t lPrevPos = 1, lCurPos = 1;
    RecordRange head, subn;
    /// Range of every level-0 record that has a cross-reference, under its tag, a blank and the
    /// cross-reference.
    const KeyedCollection<RecordRange>& colRecords() const { return *colRecords_; }

  private:
    TextView Decoded(TextView text) { return decoder_ != nullptr ? decoder_->Decode(text) : text; }
    /// Takes the length of the file; false after a box when it is longer than positions can tell.
    bool TakeLength(File& file, TextView sFile);
    std::int32_t ReadAndSplit();
    void ShowProgress();
    /// Notes that a record ends and another one starts at `position`; false when a record of the same tag and
    /// cross-reference was there before.
    bool NoteRecordStart(std::int64_t position);
    void NoteRecordEnd(std::int64_t position);
    /// Tells a line error, unless the user wants to see no further one; true to go on.
    bool AskToGoOn(const Failure& failure);
    BoxAnswer ShowLineError(const Failure& failure);

    Application& app_;
    std::optional<LineScanner> scanner_;
    std::unique_ptr<charset::Decoder> decoder_;  // none when character sets are not converted
    FileRead origin_;
    int lineErrors_ = 0;          // so far in this read
    bool goesOnUnasked_ = false;  // the user wants to see no further one
    std::unique_ptr<KeyedCollection<RecordRange>> colRecords_ =
        std::make_unique<KeyedCollection<RecordRange>>();
    Text sPrevTag, sPrevXref;
    Text sRecordKey_;  // reused to avoid allocation
};

}  // namespace swiftroll::modReadGedcom
