#pragma once

#include <QWidget>

#include "binder.h"

namespace swiftroll::ui {

/// The rows of the five files: that of the file to read, and below it the group of the others, which folds.
QWidget* BuildFileRows(frmMain& main, Binder& binder, Presenter& presenter);

}  // namespace swiftroll::ui
