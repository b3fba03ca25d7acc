#pragma once

#include "main_window.h"

namespace swiftroll::ui {

/// Makes all of the window reachable by keys: the order of the Tab key, letters for Alt in the menu bar, on
/// each page and in the dialogs, and the parts among which F6 leads. To be called once all of it has its
/// texts.
void GiveKeys(MainWindow& window);

}  // namespace swiftroll::ui
