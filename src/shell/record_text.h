#pragma once

#include "gedcom/line_reader.h"

namespace swiftroll {

/// A record as it stands in the GEDCOM file, or why it cannot be shown.
struct RecordText {
    Text text;
    bool isRecord = false;
    friend bool operator==(const RecordText&, const RecordText&) = default;
};

/// Reads the record of a person of lvwIn in the file that was read last, in the character set of the tables.
/// A long one is cut off. Says so when the file is no longer the one that was read.
RecordText ReadRecord(Files& files, const modReadGedcom::LineReader& lines, const RowView& person);

}  // namespace swiftroll
