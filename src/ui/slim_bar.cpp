#include "slim_bar.h"

#include <QPainter>

#include "layout.h"

namespace swiftroll::ui {
namespace {

constexpr int kStripWidth = 4;
constexpr int kPadding = 4;
/// How much of the accent colour the ground of the bar has, of 1.
constexpr qreal kTint = 0.15;

QColor Mixed(const QColor& ground, const QColor& accent) {
    const auto mix = [](int a, int b) { return static_cast<int>(a + (b - a) * kTint); };
    return {mix(ground.red(), accent.red()), mix(ground.green(), accent.green()),
            mix(ground.blue(), accent.blue())};
}

}  // namespace

QMargins SlimBar::Room() { return {kStripWidth + kMargin, kPadding, kPadding, kPadding}; }

void SlimBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor accent = palette().color(QPalette::Highlight);
    painter.fillRect(rect(), Mixed(palette().color(QPalette::Window), accent));
    painter.fillRect(0, 0, kStripWidth, height(), accent);
}

}  // namespace swiftroll::ui
