#pragma once

#include <QColor>

namespace swiftroll::ui {

/// Gives selections, links and whatever else stands out in the windows the program's one accent colour, in
/// the shade that goes with the light or dark theme of the desktop, and the boxes the program's own signs.
void SetUpLook();
/// Chooses the shade anew, once the theme has changed.
void FollowTheme();

}  // namespace swiftroll::ui
