#pragma once

#include <QMimeData>

namespace swiftroll::ui {

/// The first local file of a drop, or an empty text.
QString DroppedFile(const QMimeData& data);

}  // namespace swiftroll::ui
