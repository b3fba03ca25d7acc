#pragma once

#include <QComboBox>

namespace swiftroll::ui {

/// Keeps the open list of a combo as wide as its longest item, on the screen that shows it.
void FitDropDown(QComboBox& combo);

}  // namespace swiftroll::ui
