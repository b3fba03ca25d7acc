#pragma once

#include <QListWidget>
#include <functional>

namespace swiftroll::ui {

/// Lets the user reorder the rows of a list: by pressing the mouse on a row and releasing it on another, or
/// with Ctrl and the arrow keys. `move` gets the 0-based places of the row and of its target; the moved row
/// stays selected.
void LetUserReorder(QListWidget& list, std::function<void(int from, int to)> move);

}  // namespace swiftroll::ui
