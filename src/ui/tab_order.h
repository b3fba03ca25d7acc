#pragma once

#include <QWidget>

namespace swiftroll::ui {

/// Puts the fields of a window in the order in which its layouts show them, row by row, for the Tab key:
/// what follows from the order in which widgets were made is another one.
void OrderTabsByRows(QWidget& window);

}  // namespace swiftroll::ui
