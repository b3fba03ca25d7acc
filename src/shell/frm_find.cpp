#include "shell/frm_find.h"

#include "shell/settings/history.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

using modSelectionIn::FindCondition;

namespace {

constexpr int kWays = 3;

std::vector<Text> Captions(const Table& table) {
    std::vector<Text> captions;
    for (const Column& column : table.Columns()) captions.push_back(column.Caption);
    return captions;
}

template <std::size_t... i>
std::array<OptionButton, sizeof...(i)> Ways(Window& window, std::index_sequence<i...>) {
    constexpr TextView kCaptions[kWays] = {"Mot entier", "Commençant par"_t, "Contenant"};
    return {OptionButton(window, {"optSearch", kCaptions[i % kWays], {}, static_cast<int>(i)},
                         static_cast<int>(i) / kWays)...};
}

FindCondition ConditionOf(const ComboBox& text, const OptionButton& whole, const OptionButton& beginning) {
    using Match = FindCondition::Match;
    return {text.Get(), whole.Value()       ? Match::Whole
                        : beginning.Value() ? Match::Beginning
                                            : Match::Anywhere};
}

ColumnId ChosenIn(const ComboBox& columns) { return ColumnId::OfSection(columns.ListIndex()); }

}  // namespace

frmFind::frmFind(Application& app, modSelectionIn::Engine& engine)
    : Window("frmFind"),
      cboTextToFind{ComboBox(*this, {"cboTextToFind", "Rechercher", {}, 0}),
                    ComboBox(*this, {"cboTextToFind", "Et avec", {}, 1})},
      cboColumns{ComboBox(*this, {"cboColumns", "dans", {}, 0}, Captions(app.lvwIn)),
                 ComboBox(*this, {"cboColumns", "dans", {}, 1}, Captions(app.lvwIn))},
      optSearch(Ways(*this, std::make_index_sequence<std::size_t{2} * kWays>())),
      cmdFind(*this, {"cmdFind", "Rechercher"}),
      cmdFindNext(*this, {"cmdFindNext", "Suivant"}),
      cmdDeselectAll(*this, {"cmdDeselectAll", "Désélectionner Tout"_t}),
      lblFind(*this, {"lblFind"}),
      lblNotFound(*this, {"lblNotFound"}),
      app_(app),
      engine_(engine) {
    Caption = "Rechercher...";
    optSearch[1].SetValue(true);
    optSearch[4].SetValue(true);
    for (ComboBox& text : cboTextToFind) {
        text.OnLostFocus = [&text] { modCommon::cboAdd(text); };
    }
    cmdFind.Operation = [this] {
        engine_.find.lFindNext = 1;
        cmdFindNext_Click();
    };
    cmdFindNext.Operation = [this] { cmdFindNext_Click(); };
}

void frmFind::Open(TextView sText) {
    cboTextToFind[0].SetText(sText);
    cboTextToFind[1].SetText({});
    Show();
}

void frmFind::Activate() {
    Refill();
    SetFocus(cboTextToFind[0]);
}

void frmFind::Refill() {
    app_.trail.Guard(
        "Form_Activate",
        [this] {
            lblFind.Caption.clear();
            lblNotFound.Caption.clear();
            if (app_.chkIgnoreCase.Checked())
                lblFind.Caption = Concat({app_.chkIgnoreCase.Caption, kLineEnd});
            if (app_.chkDelAccents.Checked()) lblFind.Caption += app_.chkDelAccents.Caption;
            const Table& table = app_.lvwActiveListView == nullptr ? app_.lvwIn : *app_.lvwActiveListView;
            // The columns may be those of another table, which had more of them.
            const auto isOf = [&](ColumnId column) { return column.Index() <= table.ColumnCount(); };
            if (!isOf(iFindCol2)) iFindCol2 = ColumnId::OfSection(0);
            const ColumnId iFindCol1 = engine_.context.iClickedCol;
            for (ComboBox& columns : cboColumns) columns.SetItems(Captions(table));
            cboColumns[0].SetListIndex(isOf(iFindCol1) ? iFindCol1.Section() : 0);
            cboColumns[1].SetListIndex(iFindCol2.Section());
        },
        [] { return Text(); });
}

void frmFind::cmdFindNext_Click() {
    engine_.context.iClickedCol = ChosenIn(cboColumns[0]);
    iFindCol2 = ChosenIn(cboColumns[1]);
    Search("?1");
}

/// A right click since then has another column.
void frmFind::FindNext() {
    engine_.context.iClickedCol = ChosenIn(cboColumns[0]);
    Search("?N");
}

void frmFind::Search(TextView sMode) {
    engine_.find.first = ConditionOf(cboTextToFind[0], optSearch[0], optSearch[1]);
    engine_.find.second = ConditionOf(cboTextToFind[1], optSearch[3], optSearch[4]);
    engine_.find.iSecondCol = ChosenIn(cboColumns[1]);
    engine_.Add_Remove_Selection(true, sMode);
    lblNotFound.Caption = engine_.find.bFound ? TextView() : modSelectionIn::kNotFound;
}

}  // namespace swiftroll
