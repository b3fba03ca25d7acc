#include "link_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace swiftroll::ui {

LinkLabel::LinkLabel(const QString& text, const QString& name, std::function<void()> onChosen)
    : onChosen_(std::move(onChosen)) {
    QAccessible::installFactory(LinkLabelAccess::Make);
    setText(text);  // tells assistive programs, who must meet a link already
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::Link);
    setContentsMargins(2, 1, 2, 1);  // room for the frame of the focus
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Choose();
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return Choose();
        default:
            QLabel::keyPressEvent(event);
    }
}

void LinkLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void LinkLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    frame.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

QAccessibleInterface* LinkLabelAccess::Make(const QString&, QObject* object) {
    auto* label = dynamic_cast<LinkLabel*>(object);
    return label == nullptr ? nullptr : new LinkLabelAccess(*label);
}

void LinkLabelAccess::doAction(const QString& action) {
    if (action == pressAction()) label_.Choose();
}

}  // namespace swiftroll::ui
