#include "message_bar_widget.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

#include "layout.h"
#include "qt_text.h"
#include "themed_icon.h"

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

MessageBarWidget::MessageBarWidget(Presenter& presenter)
    : presenter_(presenter), text_(new QLabel), buttonRow_(new QWidget) {
    setObjectName(QStringLiteral("messageBar"));
    setAccessibleName(QStringLiteral("Avis"));
    text_->setObjectName(QStringLiteral("messageBarText"));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMinimumWidth(1);  // a long word is cut, it does not widen the window
    auto* close = new QToolButton;
    close->setObjectName(QStringLiteral("messageBarClose"));
    close->setAutoRaise(true);
    close->setIcon(ThemedIcon(QStringLiteral("close")));
    close->setAccessibleName(QStringLiteral("Fermer"));
    close->setToolTip(QStringLiteral("Fermer"));
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QToolButton::clicked, this,
            [this] { presenter_.Act([this] { presenter_.Main().messageBar.Close(); }); });
    auto* buttonLayout = new QHBoxLayout(buttonRow_);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->setSpacing(kSpacing);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kStripWidth + kMargin, kPadding, kPadding, kPadding);
    row->setSpacing(kSpacing);
    row->addWidget(text_, 1);
    row->addWidget(buttonRow_);
    row->addWidget(close);
    hide();
    presenter_.OnRefresh([this] { Refresh(); });
}

void MessageBarWidget::Refresh() {
    const MessageBar& bar = presenter_.Main().messageBar;
    if (bar.Changes() == changes_) return;
    changes_ = bar.Changes();
    const Notice* notice = bar.Seen();
    if (notice != nullptr) ShowNotice(*notice);
    setVisible(notice != nullptr);
}

void MessageBarWidget::ShowNotice(const Notice& notice) {
    text_->setText(ToQt(notice.text));
    bool isNew = isHidden();
    // A notice that only counts on keeps its buttons, and the focus that one of them may have.
    while (buttons_.size() < notice.buttons.size()) buttons_.push_back(NewNoticeButton());
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const bool isUsed = i < notice.buttons.size();
        const QString caption = isUsed ? ToQt(notice.buttons[i].caption) : QString();
        isNew = isNew || buttons_[i]->text() != caption;
        buttons_[i]->setText(caption);
        buttons_[i]->setVisible(isUsed);
    }
    if (!isNew) return;
    // The focus stays where the user works, so that a screen reader has to be told.
    QAccessibleEvent alert(text_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QPushButton* MessageBarWidget::NewNoticeButton() {
    const std::size_t index = buttons_.size();
    auto* button = new QPushButton;
    button->setObjectName(QStringLiteral("messageBarButton(%1)").arg(index));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this,
            [this, index] { presenter_.Act([this, index] { presenter_.Main().messageBar.Press(index); }); });
    buttonRow_->layout()->addWidget(button);
    return button;
}

void MessageBarWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor accent = palette().color(QPalette::Highlight);
    painter.fillRect(rect(), Mixed(palette().color(QPalette::Window), accent));
    painter.fillRect(0, 0, kStripWidth, height(), accent);
}

}  // namespace swiftroll::ui
