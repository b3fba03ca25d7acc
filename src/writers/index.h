#pragma once

#include "writers/list_source.h"

namespace swiftroll::modGenFileFromModel {

/// One pass over the rows of `lvwOut` that tells where a new entry of the alphabetical index begins: the
/// first `txtINDEX` characters of the first component of the row's key.
class IndexPass {
  public:
    explicit IndexPass(const ListSource& source) : source_(source) {}

    /// The entry of a row when it differs from that of the row before, with "_" for blanks; else nothing.
    /// @throws Failure when `txtINDEX` is no number or there are more than 32 767 entries
    std::optional<Text> NewEntry(const Row& row);

  private:
    Text EntryOf(const Row& row) const;

    const ListSource& source_;
    Text sPrevIndex_ = "\\";  // no entry is this text
    std::int16_t iIndexCount_ = 0;
};

/// The line of links to the entries of all rows, or of the marked ones, each followed by `sEmptyCell`; empty
/// after a failure, which is reported.
Text CalcINDEXes(const ListSource& source, bool bSelectedOnly, TextView sEmptyCell);

/// Writes the anchors of one file.
class AnchorWriter {
  public:
    explicit AnchorWriter(const ListSource& source) : source_(source), pass_(source) {}
    /// Writes an anchor when the row begins an entry: with `bXml` a line of the XML file, else a piece of
    /// HTML. A failure of the index is reported once, and there are no anchors from there on.
    void PutINDEX(File& iFile, const Row& row, bool bXml);

  private:
    const ListSource& source_;
    IndexPass pass_;
    bool failed_ = false;
};

}  // namespace swiftroll::modGenFileFromModel
