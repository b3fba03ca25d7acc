#pragma once

#include <QWidget>

#include "app/controls.h"

namespace swiftroll::ui {

/// Keeps the place of a window on the screen in `window`, for the settings.
void KeepPlace(QWidget& widget, Window& window, bool resizable);
/// Moves and sizes a window as the settings told, so that it can be reached on the screens of today.
void RestorePlace(QWidget& widget, const Window& window);

/// The largest size that a window with its frame can have on its screen.
QSize RoomOnScreen(const QWidget& widget);
/// Sizes a window for its first start: at most `size`, in the middle of its screen.
void PlaceFirst(QWidget& widget, QSize size);

}  // namespace swiftroll::ui
