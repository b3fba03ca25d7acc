#include "drop_zone.h"

#include <QDropEvent>
#include <QPainter>

#include "dropped_file.h"

namespace swiftroll::ui {
namespace {

constexpr qreal kRadius = 8;
constexpr float kTint = 0.12F, kFaintLine = 0.5F;

}  // namespace

void DropZone::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::Link), line = ground;
    ground.setAlphaF(isOffered_ ? kTint : 0);
    if (!isOffered_) line.setAlphaF(kFaintLine);
    painter.setBrush(ground);
    painter.setPen(QPen(line, isOffered_ ? 2 : 1.5, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), kRadius, kRadius);
}

void DropZone::SetOffered(bool isOffered) {
    isOffered_ = isOffered;
    update();
}

void DropZone::dragEnterEvent(QDragEnterEvent* event) {
    if (DroppedFile(*event->mimeData()).isEmpty()) return;
    event->acceptProposedAction();
    SetOffered(true);
}

void DropZone::dragLeaveEvent(QDragLeaveEvent*) { SetOffered(false); }

void DropZone::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    SetOffered(false);
    onFile_(DroppedFile(*event->mimeData()));
}

}  // namespace swiftroll::ui
