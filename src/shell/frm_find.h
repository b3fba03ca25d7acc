#pragma once

#include <array>

#include "selection/engine.h"

namespace swiftroll {

/// The dialog of the search in the active table, without a screen. It stays open beside the main window, and
/// follows the active table each time that it comes to the front.
class frmFind : public Window {
  public:
    frmFind(Application& app, modSelectionIn::Engine& engine);

    // Two conditions: the text, its column, and three ways to compare; the second one may stay empty.
    std::array<ComboBox, 2> cboTextToFind;
    std::array<ComboBox, 2> cboColumns;
    std::array<OptionButton, 6> optSearch;
    Command cmdFind, cmdFindNext, cmdDeselectAll;
    /// Tells the options that are in force.
    Label lblFind;
    /// Says when the last search found nothing; empty otherwise.
    Label lblNotFound;

    /// Shows the dialog with a text to look for.
    void Open(TextView sText);
    /// To be called each time that the dialog comes to the front: follows the active table, and gives the
    /// focus to the text.
    void Activate();
    /// The same where the focus is to stay: tells the options in force, and offers the active table's
    /// columns.
    void Refill();
    /// Looks for the next row with the conditions as they stand, without the dialog.
    void FindNext();

  private:
    void cmdFindNext_Click();
    void Search(TextView sMode);

    Application& app_;
    modSelectionIn::Engine& engine_;
    ColumnId iFindCol2 = ColumnId::OfSection(0);
};

}  // namespace swiftroll
