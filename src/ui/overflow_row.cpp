#include "overflow_row.h"

#include <QAbstractButton>
#include <QEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "layout.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

constexpr int kGap = 2;
constexpr int kPanelMargin = 4;

/// What takes the focus in an item, from left to right.
QList<QWidget*> FocusedIn(QWidget* item) {
    if (item->layout() == nullptr) return {item};
    QList<QWidget*> widgets;
    for (int i = 0; i < item->layout()->count(); ++i) widgets << item->layout()->itemAt(i)->widget();
    return widgets;
}

}  // namespace

OverflowRow::OverflowRow() : more_(new QToolButton(this)), panel_(new QFrame(this, Qt::Popup)) {
    more_->setObjectName(QStringLiteral("moreCommands"));
    more_->setIcon(ThemedIcon(QStringLiteral("more")));
    more_->setAutoRaise(true);
    more_->setFocusPolicy(Qt::TabFocus);
    more_->setAccessibleName(QStringLiteral("Autres commandes"));
    more_->setToolTip(QStringLiteral("Autres commandes"));
    more_->hide();
    connect(more_, &QToolButton::clicked, this, &OverflowRow::OpenPanel);
    panel_->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* column = new QVBoxLayout(panel_);
    column->setContentsMargins(kPanelMargin, kPanelMargin, kPanelMargin, kPanelMargin);
    column->setSpacing(kGap);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void OverflowRow::Add(QWidget* item) {
    item->setParent(this);
    items_.push_back(item);
    inRow_ = items_.size();
    // The panel is gone before the command runs, which may open a box.
    QList<QAbstractButton*> buttons = item->findChildren<QAbstractButton*>();
    if (auto* button = qobject_cast<QAbstractButton*>(item)) buttons << button;
    for (QAbstractButton* button : std::as_const(buttons)) {
        connect(button, &QAbstractButton::released, panel_, &QWidget::hide);
    }
}

void OverflowRow::AddStretch() { stretchAt_ = items_.size(); }

QSize OverflowRow::sizeHint() const { return {WidthOf(items_.size()), minimumSizeHint().height()}; }

QSize OverflowRow::minimumSizeHint() const {
    int height = 0;
    for (const QWidget* item : items_) height = std::max(height, item->sizeHint().height());
    return {WidthOf(1) + kGap + more_->sizeHint().width(), height};
}

/// What the first items need beside each other.
int OverflowRow::WidthOf(std::size_t count) const {
    int width = 0;
    for (std::size_t i = 0; i < std::min(count, items_.size()); ++i) {
        width += items_[i]->sizeHint().width() + (i > 0 ? kGap : 0);
    }
    return width;
}

std::size_t OverflowRow::CountThatFits() const {
    if (WidthOf(items_.size()) <= width()) return items_.size();
    std::size_t count = items_.size() - 1;
    while (count > 1 && WidthOf(count) + kGap + more_->sizeHint().width() > width()) --count;
    return count;
}

/// Lets the items from this one on stand in the panel, and those before it in the row.
void OverflowRow::MoveToPanel(std::size_t first) {
    for (std::size_t i = first; i < inRow_; ++i) panel_->layout()->addWidget(items_[i]);
    for (std::size_t i = inRow_; i < first; ++i) {
        panel_->layout()->removeWidget(items_[i]);
        items_[i]->setParent(this);
        items_[i]->show();
    }
    // Those that left the row last stand first in the panel.
    auto* column = static_cast<QVBoxLayout*>(panel_->layout());
    for (std::size_t i = first; i < items_.size(); ++i) {
        column->removeWidget(items_[i]);
        column->addWidget(items_[i]);
    }
    inRow_ = first;
    OrderFocus(0, first);
    OrderFocus(first, items_.size());
}

/// The Tab key follows the eye, whatever came and went.
void OverflowRow::OrderFocus(std::size_t first, std::size_t last) {
    QWidget* previous = nullptr;
    for (std::size_t i = first; i < last; ++i) {
        for (QWidget* widget : FocusedIn(items_[i])) {
            if (previous != nullptr) setTabOrder(previous, widget);
            previous = widget;
        }
    }
}

void OverflowRow::Arrange() {
    if (items_.empty()) return;
    if (const std::size_t count = CountThatFits(); count != inRow_) MoveToPanel(count);
    const bool isWhole = inRow_ == items_.size();
    int x = 0;
    for (std::size_t i = 0; i < inRow_; ++i) {
        if (i == stretchAt_ && isWhole) x += width() - WidthOf(items_.size());
        const int itemWidth = items_[i]->sizeHint().width();
        items_[i]->setGeometry(x, 0, std::min(itemWidth, width()), height());
        x += itemWidth + kGap;
    }
    more_->setVisible(!isWhole);
    more_->setGeometry(width() - more_->sizeHint().width(), 0, more_->sizeHint().width(), height());
}

void OverflowRow::OpenPanel() {
    panel_->adjustSize();
    const QRect screen = this->screen()->availableGeometry();
    QPoint corner = mapToGlobal(QPoint(width() - panel_->width(), height()));
    corner.setX(
        std::clamp(corner.x(), screen.left(), std::max(screen.left(), screen.right() - panel_->width())));
    corner.setY(std::max(screen.top(), std::min(corner.y(), screen.bottom() - panel_->height())));
    panel_->move(corner);
    panel_->show();
    for (std::size_t i = inRow_; i < items_.size(); ++i) {
        QWidget* const first = FocusedIn(items_[i]).first();
        if (first->isEnabled()) return first->setFocus(Qt::PopupFocusReason);
    }
}

void OverflowRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Arrange();
}

bool OverflowRow::event(QEvent* event) {
    // A caption has become longer or shorter.
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        Arrange();
    }
    return QWidget::event(event);
}

}  // namespace swiftroll::ui
