#include "shell/frm_kinship_select.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

template <std::size_t... i>
std::array<OptionButton, kReadings> Options(Window& window, std::index_sequence<i...>) {
    return {
        OptionButton(window, {"optHighLightChecked", kReadingCaptions[i], {}, static_cast<int>(i) + 1})...};
}

template <std::size_t... i>
std::array<TextBox, kSelectionBoxes> Boxes(Window& window, std::index_sequence<i...>) {
    return {TextBox(window, {"txtKinshipSelection", {}, {}, static_cast<int>(i) + 2}, {})...};
}

Text Described(const Row& person) {
    return Concat({person.Text(), " : ", person.Cell(In::LastName), ", ", person.Cell(In::FirstName)});
}

}  // namespace

frmKinshipSelect::frmKinshipSelect(Application& app)
    : Window("frmKinshipSelect"),
      optHighLightChecked(Options(*this, std::make_index_sequence<kReadings>())),
      txtKinshipSelection(Boxes(*this, std::make_index_sequence<kSelectionBoxes>())),
      chkInverted(*this, {"chkInverted", "Inversé"_t}, false),
      cmdInvertSelected(*this, {"cmdInvertSelected", "Inverser le sens de la recherche"_t,
                                "Si la recherche de liens ne trouve toujours rien après un certain temps, "
                                "inversez la recherche !"_t}),
      cmdOK(*this, {"cmdOK", "OK"}),
      cmdCancel(*this, {"cmdCancel", "Annuler"}, "Esc"),
      lblMultipleChoice(*this, {"lblMultipleChoice",
                                "Vous avez sélectionné plus de 2 individus : Lesquels faut-il choisir ?"_t}),
      lblNotDisplayed(*this, {"lblNotDisplayed",
                              "Attention : Vous avez mis une limite sur l'affichage !  Cf. "
                              "Onglet Options."_t}),
      app_(app) {
    cmdInvertSelected.Operation = [this] { chkInverted.SetChecked(!chkInverted.Checked()); };
    chkInverted.OnClick = [this] { SwapBoxes(); };
    cmdOK.Operation = [this] { Close(false); };
    cmdCancel.Operation = [this] { Close(true); };
    for (OptionButton& option : optHighLightChecked) option.OnDblClick = [this] { Close(false); };
}

void frmKinshipSelect::ClearChoices() {
    chkInverted.SetChecked(false);
    for (OptionButton& option : optHighLightChecked) {
        option.SetValue(false);
        option.Enabled = false;
    }
    for (TextBox& box : txtKinshipSelection) {
        box.SetText({});
        box.Enabled = false;
    }
}

void frmKinshipSelect::SetKinshipSelection(int iChoice, const Row& first, const Row& second) {
    Option(iChoice).Enabled = FirstBox(iChoice).Enabled = SecondBox(iChoice).Enabled = true;
    FirstBox(iChoice).SetText(Described(first));
    SecondBox(iChoice).SetText(Described(second));
}

void frmKinshipSelect::DropRedundantChoice(int iWide, int iNarrow) {
    const bool isSame = Option(iWide).Enabled && Option(iNarrow).Enabled &&
                        FirstBox(iWide).Get() == FirstBox(iNarrow).Get() &&
                        SecondBox(iWide).Get() == SecondBox(iNarrow).Get();
    if (!isSame) return;
    Option(iWide).SetValue(false);
    Option(iWide).Enabled = FirstBox(iWide).Enabled = SecondBox(iWide).Enabled = false;
}

void frmKinshipSelect::Open() {
    constexpr std::pair<int, int> kWideAndNarrow[] = {{4, 1}, {4, 3}, {5, 2}, {5, 3}, {6, 1},
                                                      {6, 2}, {6, 3}, {6, 4}, {6, 5}};
    for (const auto& [wide, narrow] : kWideAndNarrow) DropRedundantChoice(wide, narrow);
    int enabled = 0;
    for (OptionButton& option : optHighLightChecked) {
        option.SetValue(option.Enabled && enabled == 0);
        if (option.Enabled) ++enabled;
    }
    lblMultipleChoice.Visible = enabled > 1;
    Caption = Concat({app_.MainCaption(),
                      enabled > 1 ? " - Sélectionnez les 2 individus"_t : " - Recherche de parenté"_t});
    lblNotDisplayed.Visible = app_.chkMaxLinks.Checked() || app_.chkMaxSpouses.Checked();
}

int frmKinshipSelect::Choice() {
    for (int i = 1; i <= kReadings; ++i) {
        if (Option(i).Value()) return i;
    }
    return 0;
}

void frmKinshipSelect::SwapBoxes() {
    for (int i = 1; i <= kReadings; ++i) {
        const Text first = FirstBox(i).Get();
        FirstBox(i).SetText(SecondBox(i).Get());
        SecondBox(i).SetText(first);
    }
}

void frmKinshipSelect::Close(bool bCancelled) {
    app_.bAbort = bCancelled;
    Hide();
}

}  // namespace swiftroll
