// Favourites: rows of a table by their key, with a text of the user's behind it.
#include "shell/frm_main.h"
#include "shell/history.h"
#include "shell/ignoring_failures.h"
#include "text/edit.h"

namespace swiftroll {
namespace {

constexpr char kKeyEnd = '^';
constexpr std::uint32_t kMagenta = 0xFF00FF;

/// 1-based, 0 if there is none.
std::size_t GetFavoritePos(TextView sText) { return sText.find(kKeyEnd) + 1; }

/// The key of a row and what ends it.
TextView KeyPart(TextView sText) { return sText.substr(0, GetFavoritePos(sText)); }

}  // namespace

void frmMain::BindFavorites() {
    for (std::size_t i = 0; i < cboFavorites.size(); ++i) {
        cboFavorites[i].OnGotFocus = cboFavorites[i].OnClick = [this, i] { cboFavorites_GotFocus(i); };
        cboFavorites[i].OnLostFocus = [this, i] { cboFavorites_LostFocus(i); };
    }
    cmdGotoFavorite.Operation = [this] { cmdGotoFavorite_Click(); };
    ShowFavorites(Tab::In);
}

/// Brings the combo of a table to the front; the tabs of options leave it as it is.
void frmMain::ShowFavorites(Tab tab) {
    const auto number = static_cast<std::size_t>(tab);
    if (number >= cboFavorites.size()) return;
    for (std::size_t i = 0; i < cboFavorites.size(); ++i) cboFavorites[i].Visible = i == number;
}

void frmMain::mnuAddFavorite_Click() {
    trail.Guard(
        "mnuAddFavorite_Click",
        [&] {
            const auto index = static_cast<std::size_t>(SSTab1);
            const auto row = lvwActiveListView == nullptr ? std::nullopt : lvwActiveListView->Current();
            if (!row || index >= cboFavorites.size()) return;
            cboFavorites[index].SetText(Concat({row->Key(), TextView(&kKeyEnd, 1)}));
            cboFavorites_GotFocus(index);
            cboFavorites_LostFocus(index);
        },
        [] { return Text(); });
}

void frmMain::cboFavorites_GotFocus(std::size_t Index) { sFavoriteKey_ = KeyPart(cboFavorites[Index].Get()); }

void frmMain::cboFavorites_LostFocus(std::size_t Index) {
    ComboBox& combo = cboFavorites[Index];
    trail.Guard(
        "cboFavorites_LostFocus",
        [&] {
            const Text text = combo.Get();
            if (KeyPart(text) != sFavoriteKey_) {
                combo.SetText(Concat({sFavoriteKey_, TextView(text).substr(GetFavoritePos(text))}));
            }
            modCommon::cboAdd(combo);
            KeepOneFavorite(combo);
        },
        [&] { return combo.Get(); });
}

/// Of the favourites of one row only the one edited last stays, which stands on top.
void frmMain::KeepOneFavorite(ComboBox& combo) {
    std::vector<Text> items;
    for (std::size_t i = 0; i < combo.Items().size(); ++i) {
        const Text& item = combo.Items()[i];
        const bool isPicked = static_cast<int>(i) == combo.ListIndex();
        if (i == 0 || isPicked || KeyPart(item) != sFavoriteKey_) items.push_back(item);
    }
    if (items.size() == combo.Items().size()) return;
    const bool wasOnTop = combo.ListIndex() == 0;
    combo.SetItems(std::move(items));
    if (wasOnTop) combo.SetListIndex(0);
}

void frmMain::cmdGotoFavorite_Click() {
    const auto index = static_cast<std::size_t>(SSTab1);
    if (index >= cboFavorites.size() || lvwActiveListView == nullptr) return;
    modCommon::IgnoringFailures([&] {
        const Text text = cboFavorites[index].Get();
        const std::size_t end = GetFavoritePos(text);
        if (end == 0) return;
        auto row = lvwActiveListView->Find(TextView(text).substr(0, end - 1));
        if (!row) return;
        CellLook look = row->Look();
        look.ForeColor = kMagenta;
        look.Bold = true;
        row->SetLook({}, look);
        row->EnsureVisible();
        if (ports.keyboard.IsShiftDown()) row->SetChecked(true);
    });
}

}  // namespace swiftroll
