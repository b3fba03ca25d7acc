#include "column_widths.h"

#include <QStyle>
#include <algorithm>

#include "column_marks.h"
#include "qt_text.h"
#include "row_painter.h"

namespace swiftroll::ui {
namespace {

/// Columns count their width in hundredths of a millimetre, the screen in 96ths of an inch.
constexpr int kPixelsPerInch = 96, kUnitsPerInch = 2540;

}  // namespace

int PixelsOf(std::int32_t width) { return std::clamp(width * kPixelsPerInch / kUnitsPerInch, 0, 10000); }

std::int32_t UnitsOf(int pixels) { return pixels * kUnitsPerInch / kPixelsPerInch; }

std::function<std::int32_t(TextView, bool)> MeasureLike(const QWidget& widget) {
    return [&widget](TextView text, bool isHeader) {
        const int margin = isHeader ? widget.style()->pixelMetric(QStyle::PM_HeaderMargin) : kCellMargin;
        const int marks = isHeader ? kMarksWidth + margin : 0;
        return UnitsOf(widget.fontMetrics().horizontalAdvance(ToQt(text)) + marks + 2 * margin + 2);
    };
}

}  // namespace swiftroll::ui
