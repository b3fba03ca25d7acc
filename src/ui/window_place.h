#pragma once

#include <QWidget>

#include "app/controls.h"

namespace swiftroll::ui {

/// Keeps the place of a window on the screen in `window`, for the settings.
void KeepPlace(QWidget& widget, Window& window, bool resizable);
/// Moves and sizes a window as the settings told, so that it can be reached on the screens of today.
void RestorePlace(QWidget& widget, const Window& window);

}  // namespace swiftroll::ui
