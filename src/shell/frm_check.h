#pragma once

#include "gedcom/line_reader.h"
#include "shell/finding_list.h"
#include "shell/main_commands.h"

namespace swiftroll {

/// A choice that belongs to what the window shows at present, and is not kept in the settings.
struct PassingChoice : ComboBox {
    using ComboBox::ComboBox;
    std::vector<Text> ToTexts() const override { return {}; }
};

/// The window of what a check of the file found, without a screen. It stays open beside the main window.
class frmCheck : public Window {
  public:
    /// `lines` tells the file that was read.
    frmCheck(Application& app, CheckCommands& commands, const modReadGedcom::LineReader& lines);

    /// Before the controls, which begin with what it says.
    FindingList findings;
    /// Tells the file and how many findings there are.
    Label lblSummary;
    PassingChoice cboKind;
    Command cmdCopy, cmdSaveHtml, cmdCheckAgain;

    /// The rows that the user has selected, from 0, for `cmdCopy`; all of them where there are none. Filled
    /// by the presentation.
    std::vector<std::size_t> selectedRows;

    /// Whether a check runs at present: Escape stops it.
    bool IsChecking() const { return isChecking_; }
    /// Whether a check has run, so that there is something to show.
    bool HasReport() const { return !findings.Report().file.empty(); }
    /// Goes to the individual or the family of a row in its list.
    void GoTo(std::size_t row);

  private:
    void mnuCheckFile_Click();
    void Check();
    void TellFailure();
    /// Tells why the file that was read cannot be checked, and what to do.
    void Refuse(TextView why, TextView whatToDo);
    void ShowReport(modCheck::Report report);
    void cmdCopy_Click();
    void cmdSaveHtml_Click();

    Application& app_;
    const modReadGedcom::LineReader& lines_;
    bool isChecking_ = false;
};

}  // namespace swiftroll
