#include "mark_strip.h"

#include <QMouseEvent>
#include <QPainter>

namespace swiftroll::ui {

MarkStrip::MarkStrip(const Table& table, const RowFilter& filter, std::function<void(int place)> goTo,
                     QWidget* parent)
    : QWidget(parent), table_(table), filter_(filter), goTo_(std::move(goTo)) {
    setObjectName(QStringLiteral("markStrip"));
    setToolTip(QStringLiteral("Où sont les lignes marquées : un clic y va."));
}

void MarkStrip::Refresh() {
    const std::tuple present(table_.MarkChanges(), table_.OrderChanges(), filter_.Changes(), filter_.Count());
    if (std::exchange(seen_, present) == present) return;
    isDue_ = true;
    update();
}

void MarkStrip::FindLines() {
    lines_.assign(static_cast<std::size_t>(height()), false);
    const std::int64_t rows = filter_.Count();
    if (rows == 0) return;
    const auto note = [&](std::int64_t place) {
        lines_[static_cast<std::size_t>(place * height() / rows)] = true;
    };
    if (!filter_.IsOn()) return table_.VisitMarked([&](std::int32_t row) { note(row - 1); });
    for (std::int32_t place = 0; place < rows; ++place) {
        const std::int32_t row = filter_.RowAt(place);
        if (row <= table_.Count() && table_.Item(row).Marked()) note(place);
    }
}

void MarkStrip::paintEvent(QPaintEvent*) {
    if (std::exchange(isDue_, false)) FindLines();
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const QColor colour = palette().color(QPalette::Highlight);
    for (int y = 0; y < static_cast<int>(lines_.size()); ++y) {
        // Of a marked row alone a line of one pixel would hardly be seen.
        if (lines_[static_cast<std::size_t>(y)])
            painter.fillRect(1, std::max(0, y - 1), width() - 2, 2, colour);
    }
}

void MarkStrip::resizeEvent(QResizeEvent*) { isDue_ = true; }

void MarkStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || height() == 0) return;
    goTo_(static_cast<int>(static_cast<std::int64_t>(filter_.Count()) *
                           static_cast<std::int64_t>(event->position().y()) / height()));
}

}  // namespace swiftroll::ui
