#pragma once

#include "app/application.h"
#include "shell/ask_file.h"
#include "shell/main_commands.h"

namespace swiftroll {

/// What a file dialog asks for.
struct FileRole {
    TextView title, filterName;
    Text extension;
    /// Further kinds of files that are offered.
    FileKinds others = {};
};

/// The five file combos: the dialogs that fill them, the rules of the names in them, and the opening of what
/// they name.
class FileCombos {
  public:
    FileCombos(Application& app, FileCommands& commands, DisplayCommands& displays);

    /// Asks for a file and puts it in its combo; `bDialogCancelled` tells whether the user wants to go on. To
    /// save, he is asked about a file that exists.
    void SelectFile(ComboBox& combo, bool bSave, const FileRole& role);
    /// Brings a combo to sight, which stands in a group that the user may have folded.
    void Reveal(const ComboBox& combo);
    /// Settles the name that stands in a combo: no two of them name one file.
    void FileCombo_LostFocus(ComboBox& cbo);
    /// Opens a file with the program that belongs to it; what hinders that is told in a box.
    void OpenFile(TextView sFile);

  private:
    bool GetFile(ComboBox& combo, bool bSave, const FileRole& role);
    bool CheckFileCbo(ComboBox& cbo);

    Application& app_;
    /// The name that the combo with the focus began with.
    Text sPrevFile_;
};

}  // namespace swiftroll
