#include "shell/favorites.h"

#include "shell/settings/history.h"
#include "text/edit.h"
#include "text/ignoring_failures.h"

namespace swiftroll {
namespace {

constexpr char kKeyEnd = '^';
constexpr std::uint32_t kMagenta = 0xFF00FF;

/// 1-based, 0 if there is none.
std::size_t GetFavoritePos(TextView sText) { return sText.find(kKeyEnd) + 1; }

/// The key of a row and what ends it.
TextView KeyPart(TextView sText) { return sText.substr(0, GetFavoritePos(sText)); }

}  // namespace

Favorites::Favorites(Application& app, Command& mnuAddFavorite, Command& cmdGotoFavorite) : app_(app) {
    for (std::size_t i = 0; i < app_.cboFavorites.size(); ++i) {
        app_.cboFavorites[i].OnGotFocus =
            app_.cboFavorites[i].OnClick = [this, i] { cboFavorites_GotFocus(i); };
        app_.cboFavorites[i].OnLostFocus = [this, i] { cboFavorites_LostFocus(i); };
    }
    mnuAddFavorite.Operation = [this] { mnuAddFavorite_Click(); };
    cmdGotoFavorite.Operation = [this] { cmdGotoFavorite_Click(); };
    ShowFavorites(Tab::In);
}

void Favorites::ShowFavorites(Tab tab) {
    const auto number = static_cast<std::size_t>(tab);
    if (number >= app_.cboFavorites.size()) return;
    for (std::size_t i = 0; i < app_.cboFavorites.size(); ++i) app_.cboFavorites[i].Visible = i == number;
}

void Favorites::mnuAddFavorite_Click() {
    app_.trail.Guard(
        "mnuAddFavorite_Click",
        [&] {
            const auto index = static_cast<std::size_t>(app_.SSTab1);
            Table* const table = app_.lvwActiveListView;
            const auto row = table == nullptr || app_.IsSummary(table) ? std::nullopt : table->Current();
            if (!row || index >= app_.cboFavorites.size()) return;
            app_.cboFavorites[index].SetText(Concat({row->Key(), TextView(&kKeyEnd, 1)}));
            cboFavorites_GotFocus(index);
            cboFavorites_LostFocus(index);
        },
        [] { return Text(); });
}

void Favorites::cboFavorites_GotFocus(std::size_t Index) {
    sFavoriteKey_ = KeyPart(app_.cboFavorites[Index].Get());
}

void Favorites::cboFavorites_LostFocus(std::size_t Index) {
    ComboBox& combo = app_.cboFavorites[Index];
    app_.trail.Guard(
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
void Favorites::KeepOneFavorite(ComboBox& combo) {
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

void Favorites::cmdGotoFavorite_Click() {
    const auto index = static_cast<std::size_t>(app_.SSTab1);
    Table* const table =
        app_.IsSummary(app_.lvwActiveListView) ? app_.TableOf(app_.SSTab1) : app_.lvwActiveListView;
    if (index >= app_.cboFavorites.size() || table == nullptr) return;
    IgnoringFailures([&] {
        const Text text = app_.cboFavorites[index].Get();
        const std::size_t end = GetFavoritePos(text);
        if (end == 0) return;
        auto row = table->Find(TextView(text).substr(0, end - 1));
        if (!row) return;
        CellLook look = row->Look();
        look.ForeColor = kMagenta;
        look.Bold = true;
        row->SetLook({}, look);
        row->EnsureVisible();
        if (app_.ports.keyboard.IsShiftDown()) row->SetChecked(true);
    });
}

}  // namespace swiftroll
