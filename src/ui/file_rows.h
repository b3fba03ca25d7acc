#pragma once

#include <QWidget>

#include "binder.h"

namespace swiftroll::ui {

/// The five rows of the files, with their buttons at the right edge.
QWidget* BuildFileRows(frmMain& main, Binder& binder);

}  // namespace swiftroll::ui
