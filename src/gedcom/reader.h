#pragma once

#include "gedcom/line_reader.h"
#include "gedcom/links.h"
#include "gedcom/read_findings.h"

namespace swiftroll::modReadGedcom {

class RecordReader;

/// Reads a GEDCOM file into the tables: the module's state that lives from one read to the next.
class Reader {
  public:
    explicit Reader(Application& app) : app_(app), lines(app) {}

    /// Fills the tables from the file that `InitGedcom` of `lines` opened, or what was read of it when
    /// `bAbort` is set. @throws ProgramEnd after the report of a failure of its own
    void ProcessGedcom();

  private:
    void Prepare(const char*& stage, std::int16_t& counter);
    void ReadLines();
    std::int32_t ReadRecords(RecordReader& records, std::int32_t result);
    std::int32_t SkipDeeperLines();
    /// False when the user refuses a character set that the program does not know.
    bool AcceptCharset();
    void ReadFamily(Links& links);
    void Finish(Links& links);

    Application& app_;

  public:
    LineReader lines;
    /// What the last read met beside what it read.
    ReadFindings findings;
    /// Number of individuals of each island of the tables, by its number from 1.
    std::vector<std::int32_t> islandSizes;
    /// Told when the families of the file were processed, so that the commands that need them can be enabled.
    Event OnFamiliesRead;
};

}  // namespace swiftroll::modReadGedcom
