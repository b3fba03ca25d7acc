#include "shell/tabs.h"

namespace swiftroll {

void Tabs::TableGotFocus(Table& table) {
    app_.LeaveFocus();
    app_.lvwActiveListView = &table;
    mnuCopy_.Enabled = true;
    drawing_.OfferPrinting();
}

void Tabs::GiveFocus(Table& table) {
    TableGotFocus(table);
    if (OnTabFocus) OnTabFocus();
}

void Tabs::ShowTab(Tab tab) {
    app_.SSTab1 = tab;
    SSTab1_GotFocus();
}

void Tabs::SSTab1_GotFocus() {
    favorites_.ShowFavorites(app_.SSTab1);
    if (Table* const table = app_.TableOf(app_.SSTab1)) return GiveFocus(*table);
    mnuCopy_.Enabled = false;
    if (app_.SSTab1 == Tab::FormatOptions) app_.SetFocus(app_.lbOuputPlacesOrder);
    if (app_.SSTab1 == Tab::LinkOptions) app_.SetFocus(app_.txtKinHeight);
    if (app_.SSTab1 == Tab::Options) app_.SetFocus(app_.chkIgnoreCase);
}

}  // namespace swiftroll
