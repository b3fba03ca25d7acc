#pragma once

#include "app/application.h"

namespace swiftroll {

/// The favourites: rows of a table by their key, with a text of the user's behind it, in a combo a tab.
class Favorites {
  public:
    /// Binds the combos and the two commands: the one that adds a row, and the one that goes to it.
    Favorites(Application& app, Command& mnuAddFavorite, Command& cmdGotoFavorite);

    /// Brings the combo of a table to the front; the tabs of options leave it as it is.
    void ShowFavorites(Tab tab);
    /// Puts the current row of the current table among the favourites of the present tab.
    void mnuAddFavorite_Click();

  private:
    void cboFavorites_GotFocus(std::size_t Index);
    void cboFavorites_LostFocus(std::size_t Index);
    void KeepOneFavorite(ComboBox& combo);
    void cmdGotoFavorite_Click();

    Application& app_;
    /// The key part of the combo that has the focus.
    Text sFavoriteKey_;
};

}  // namespace swiftroll
