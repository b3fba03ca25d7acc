#pragma once

#include "shell/favorites.h"
#include "shell/path_drawing.h"
#include "text/literal.h"

namespace swiftroll {

/// What stands on the tabs of the main window.
inline constexpr TextView kTabCaptions[] = {"Entrée"_t,  "Sortie",      "Famille Xref", "Xref",   "Famille",
                                            "Parenté"_t, "Opt. Format", "Opt. Liens",   "Options"};

/// Whether a tab is that of a table; those behind hold options.
constexpr bool TabHasTable(Tab tab) { return tab <= Tab::Kinship; }

/// The tabs of the main window, and the table that its commands work on.
class Tabs {
  public:
    /// `mnuCopy` needs a table; the favourites and the printing of paths follow it.
    Tabs(Application& app, Command& mnuCopy, Favorites& favorites, PathDrawing& drawing)
        : app_(app), mnuCopy_(mnuCopy), favorites_(favorites), drawing_(drawing) {}

    /// Brings a tab to the front and gives the focus to what it is for.
    void ShowTab(Tab tab);
    /// Gives the focus to what the present tab is for.
    void SSTab1_GotFocus();
    /// For the presentation, which moves its own focus after.
    std::function<void()> OnTabFocus;
    /// Gives the focus to a table of the present tab.
    void GiveFocus(Table& table);
    /// A table has taken the focus: the list commands work on it from now on.
    void TableGotFocus(Table& table);

  private:
    Application& app_;
    Command& mnuCopy_;
    Favorites& favorites_;
    PathDrawing& drawing_;
};

}  // namespace swiftroll
