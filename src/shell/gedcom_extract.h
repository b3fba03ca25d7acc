#pragma once

#include "gedcom/line_reader.h"
#include "shell/file_combos.h"

namespace swiftroll {

/// The command that writes a GEDCOM extract, and the name of its file.
class GedcomExtract {
  public:
    /// `lines` knows where the records of the read file stand.
    GedcomExtract(Application& app, ExtractCommands& commands, const modReadGedcom::LineReader& lines,
                  FileCombos& fileCombos);

  private:
    void cmdSaveGed_Click();
    void cmdCopyGedIn2GedOut_Click();
    /// Why the extract cannot be written, as the lines of a box that tells what to do; empty when it can.
    Text Obstacle(TextView input, TextView output);

    Application& app_;
    ExtractCommands& commands_;
    const modReadGedcom::LineReader& lines_;
    FileCombos& fileCombos_;
};

}  // namespace swiftroll
