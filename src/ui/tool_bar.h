#pragma once

#include "binder.h"
#include "overflow_row.h"

namespace swiftroll::ui {

/// The commands of the window as pictures with captions.
OverflowRow* BuildToolBar(frmMain& main, Binder& binder);

}  // namespace swiftroll::ui
