#pragma once

#include <array>

#include "app/application.h"
#include "shell/kinship_choices.h"

namespace swiftroll {

/// Two boxes a reading.
inline constexpr std::size_t kSelectionBoxes = std::size_t{2} * kReadings;

/// The dialog in which the user settles the pair of a kinship request, without a screen. It offers the
/// readings of the marks that name two individuals of one island.
class frmKinshipSelect : public Window {
  public:
    explicit frmKinshipSelect(Application& app);

    // Arrays from index 1, and 2: a reading has two boxes.
    std::array<OptionButton, kReadings> optHighLightChecked;
    std::array<TextBox, kSelectionBoxes> txtKinshipSelection;
    /// The boxes read in the direction of the search, whichever way it is inverted.
    CheckBox chkInverted;
    Command cmdInvertSelected;
    Command cmdOK, cmdCancel;
    Label lblMultipleChoice, lblNotDisplayed;

    /// The option of a reading from 1 to 6, and its boxes.
    OptionButton& Option(int iChoice) { return optHighLightChecked[static_cast<std::size_t>(iChoice - 1)]; }
    TextBox& FirstBox(int iChoice) { return txtKinshipSelection[static_cast<std::size_t>(2 * iChoice - 2)]; }
    TextBox& SecondBox(int iChoice) { return txtKinshipSelection[static_cast<std::size_t>(2 * iChoice - 1)]; }

    /// Disables and empties everything; the direction is no longer inverted.
    void ClearChoices();
    /// Enables a reading with the two individuals at these rows of lvwIn.
    void SetKinshipSelection(int iChoice, const Row& first, const Row& second);
    /// To be called before the dialog is shown: drops what names the same pair as a narrower reading, chooses
    /// the first that is left, and sets the texts.
    void Open();
    /// The reading that is chosen, 0 for none.
    int Choice();

  private:
    void DropRedundantChoice(int iWide, int iNarrow);
    void SwapBoxes();
    void Close(bool bCancelled);
    Application& app_;
};

}  // namespace swiftroll
