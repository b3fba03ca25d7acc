#pragma once

#include <QIcon>

#include "text/text.h"

namespace swiftroll::ui {

/// Width and height in pixels of the marks of a column header.
inline constexpr int kMarksWidth = 24, kMarksHeight = 14;

/// The picture of a column's icon of four letters: whether the column is copied, and whether and how the
/// table is sorted by it.
QIcon ColumnMarks(TextView icon);

}  // namespace swiftroll::ui
