#pragma once

#include <QIcon>

namespace swiftroll::ui {

/// One of the program's own pictures, in the colours of the present theme: what is drawn in "currentColor"
/// takes the colour of texts, what is drawn in "accentColor" the accent of the program.
QIcon ThemedIcon(const QString& name);
/// The same as a picture of `size` device-independent pixels, in a colour of its own.
QPixmap ThemedPixmap(const QString& name, QSize size, const QColor& colour, qreal ratio);

}  // namespace swiftroll::ui
