#pragma once

#include <QWidget>
#include <functional>

#include "text/text.h"

namespace swiftroll::ui {

/// The width of a column in pixels, and in hundredths of a millimetre.
int PixelsOf(std::int32_t width);
std::int32_t UnitsOf(int pixels);

/// Measures what a cell, or a header, needs for a text in the letters of a widget.
std::function<std::int32_t(TextView text, bool isHeader)> MeasureLike(const QWidget& widget);

}  // namespace swiftroll::ui
