#include "grouping_chip.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>

namespace swiftroll::ui {
namespace {

constexpr int kPadding = 8, kCrossSize = 7;
/// How much of the accent colour a chip has that forms groups, and one that is under the pointer.
constexpr qreal kGroupTint = 0.22, kHoverTint = 0.12;

QColor Tinted(QColor accent, qreal tint) {
    accent.setAlphaF(static_cast<float>(tint));
    return accent;
}

}  // namespace

GroupingChip::GroupingChip(ColumnId column, bool isGroup, const Actions& actions, QWidget* parent)
    : QWidget(parent), column_(column), isGroup_(isGroup), actions_(actions) {
    setObjectName(QStringLiteral("groupingChip(%1)").arg(column.Section()));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
    setCursor(Qt::OpenHandCursor);
    setAccessibleDescription(
        QStringLiteral("Ctrl+Gauche et Ctrl+Droite déplacent la colonne, Suppr la retire."));
}

void GroupingChip::SetText(const QString& text) {
    if (text_ == text) return;
    text_ = text;
    updateGeometry();
    update();
}

QSize GroupingChip::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(text_) + 3 * kPadding + kCrossSize, metrics.height() + kPadding};
}

QRect GroupingChip::CrossRect() const {
    return QRect(width() - kPadding - kCrossSize, (height() - kCrossSize) / 2, kCrossSize, kCrossSize);
}

void GroupingChip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette().color(QPalette::Highlight), ink = palette().color(QPalette::WindowText);
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    const qreal radius = frame.height() / 2;
    const auto fill = [&](const QColor& colour) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawRoundedRect(frame, radius, radius);
    };
    fill(palette().color(QPalette::Base));
    if (isGroup_) fill(Tinted(accent, kGroupTint));
    if (underMouse() || isDragged_) fill(Tinted(accent, kHoverTint));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(hasFocus() ? QPen(accent, 2) : QPen(Tinted(ink, 0.45), 1));
    painter.drawRoundedRect(frame, radius, radius);
    painter.setPen(ink);
    painter.drawText(rect().adjusted(kPadding, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text_);
    const QRect cross = CrossRect();
    const bool isOverCross =
        underMouse() && cross.adjusted(-3, -3, 3, 3).contains(mapFromGlobal(QCursor::pos()));
    painter.setPen(QPen(isOverCross ? ink : Tinted(ink, 0.6), isOverCross ? 2 : 1.4));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

void GroupingChip::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressedAt_ = event->position().toPoint();
    isCrossPressed_ = CrossRect().adjusted(-4, -4, 4, 4).contains(pressedAt_);
    isPressed_ = !isCrossPressed_;
}

void GroupingChip::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    update();
    if (!isPressed_) return;
    if (!isDragged_ && (point - pressedAt_).manhattanLength() < QApplication::startDragDistance()) return;
    isDragged_ = true;
    setCursor(Qt::ClosedHandCursor);
    raise();
    move(pos() + point - pressedAt_);
    actions_.dragged(*this);
}

void GroupingChip::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    setCursor(Qt::OpenHandCursor);
    isPressed_ = false;
    const bool isOnCross = CrossRect().adjusted(-4, -4, 4, 4).contains(event->position().toPoint());
    if (std::exchange(isCrossPressed_, false) && isOnCross) return actions_.takeOut(*this);
    if (std::exchange(isDragged_, false)) actions_.dropped(*this);
}

void GroupingChip::contextMenuEvent(QContextMenuEvent* event) { ShowMenu(event->globalPos()); }

void GroupingChip::ShowMenu(const QPoint& point) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("groupingChipMenu"));
    const QAction* before = menu.addAction(QStringLiteral("Déplacer à gauche"));
    const QAction* behind = menu.addAction(QStringLiteral("Déplacer à droite"));
    const QAction* out = menu.addAction(QStringLiteral("Retirer"));
    const QAction* chosen = menu.exec(point);
    if (chosen == nullptr) return;
    if (chosen == out) return actions_.takeOut(*this);
    actions_.move(*this, chosen == behind ? 1 : chosen == before ? -1 : 0);
}

bool GroupingChip::OnKey(const QKeyEvent& event) {
    const bool isCtrl = (event.modifiers() & Qt::ControlModifier) != 0;
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right: {
            const int step = event.key() == Qt::Key_Left ? -1 : 1;
            isCtrl ? actions_.move(*this, step) : actions_.goTo(*this, step);
            return true;
        }
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            actions_.takeOut(*this);
            return true;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            ShowMenu(mapToGlobal(QPoint(0, height())));
            return true;
        case Qt::Key_Escape:
            // Elsewhere the key stops the work that runs.
            if (!isDragged_) return false;
            isPressed_ = isDragged_ = false;
            actions_.dragCancelled(*this);
            return true;
        default:
            return false;
    }
}

void GroupingChip::keyPressEvent(QKeyEvent* event) {
    if (!OnKey(*event)) event->ignore();
}

bool GroupingChip::event(QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    return QWidget::event(event);
}

}  // namespace swiftroll::ui
