#pragma once

#include "gedcom/line_reader.h"
#include "shell/file_combos.h"

namespace swiftroll {

/// The command that writes the Relevé-vif, and how the names of its files follow its format.
class Writing {
  public:
    /// `lines` knows the numbers of the read file.
    Writing(Application& app, WritingCommands& commands, const Command& cmdSelectDirSwiftOut,
            const modReadGedcom::LineReader& lines, FileCombos& fileCombos);

    /// Shows the format after the restore of the settings, which gave the names of the files.
    void ShowFormat();
    /// The last file written is whole; false when a step of an XML file failed, which no box tells.
    bool bWriteComplete = true;
    /// The stylesheet that is written beside an output under the present options; empty for none.
    Text StylesheetOf(TextView sOutFile) const;
    /// Why the model cannot be one of the chosen format, by its extension; empty when it can, or is not used.
    Text ModelDoubt() const;

  private:
    void cmdSaveSwift_Click();
    void WriteSwiftFile(bool bSelectedOnly);
    bool ModelIsMissing(TextView sFile);
    void optOutExtension_Click(int Index);
    void cboSaveSwift_Click();
    void chkGenerXSL_Click();
    void txtOutExtension_LostFocus(int Index);
    void cmdCopyGedIn2SwiftOut_Click();

    Application& app_;
    WritingCommands& commands_;
    const Command& cmdSelectDirSwiftOut_;
    const modReadGedcom::LineReader& lines_;
    FileCombos& fileCombos_;
    /// The extension that the field with the focus began with, or was last settled at.
    Text sPrevExtension_;
};

}  // namespace swiftroll
