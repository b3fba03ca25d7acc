#include "turning_splitter.h"

namespace swiftroll::ui {
namespace {

/// How much wider than high it is when there is room.
constexpr qreal kWide = 1.5;

}  // namespace

TurningSplitter::TurningSplitter() : QSplitter(Qt::Horizontal) {}

void TurningSplitter::resizeEvent(QResizeEvent* event) {
    QSplitter::resizeEvent(event);
    const Qt::Orientation wanted = width() > kWide * height() ? Qt::Horizontal : Qt::Vertical;
    if (orientation() != wanted) setOrientation(wanted);
}

}  // namespace swiftroll::ui
