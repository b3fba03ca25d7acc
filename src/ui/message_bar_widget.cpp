#include "message_bar_widget.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QToolButton>

#include "layout.h"
#include "qt_text.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

/// How long what a work has made is told.
constexpr int kPassingMilliseconds = 10000;

}  // namespace

MessageBarWidget::MessageBarWidget(Presenter& presenter, Source source)
    : presenter_(presenter), source_(std::move(source)), text_(new QLabel), buttonRow_(new QWidget) {
    setObjectName(source_.name);
    setAccessibleName(QStringLiteral("Avis"));
    text_->setObjectName(source_.name + QStringLiteral("Text"));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMinimumWidth(1);  // a long word is cut, it does not widen the window
    auto* close = new QToolButton;
    close->setObjectName(source_.name + QStringLiteral("Close"));
    close->setAutoRaise(true);
    close->setIcon(ThemedIcon(QStringLiteral("close")));
    close->setAccessibleName(QStringLiteral("Fermer"));
    close->setToolTip(QStringLiteral("Fermer"));
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QToolButton::clicked, this, [this] { Close(); });
    auto* buttonLayout = new QHBoxLayout(buttonRow_);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->setSpacing(kSpacing);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Room());
    row->setSpacing(kSpacing);
    row->addWidget(text_, 1);
    row->addWidget(buttonRow_);
    row->addWidget(close);
    hide();
    time_.setParent(this);
    time_.setSingleShot(true);
    time_.setInterval(kPassingMilliseconds);
    connect(&time_, &QTimer::timeout, this, [this] { OnTimeOver(); });
    presenter_.OnRefresh([this] { Refresh(); });
}

MessageBarWidget* NewNoticeBar(Presenter& presenter) {
    return new MessageBarWidget(
        presenter, {QStringLiteral("messageBar"), [](const MessageBar& bar) { return bar.Seen(); },
                    [](MessageBar& bar, std::size_t button) { bar.Press(button); },
                    [](MessageBar& bar) { bar.Close(); }, [](const MessageBar&) { return false; }});
}

MessageBarWidget* NewWorkNoticeBar(Presenter& presenter) {
    return new MessageBarWidget(
        presenter, {QStringLiteral("workNotice"), [](const MessageBar& bar) { return bar.Told(); },
                    [](MessageBar& bar, std::size_t button) { bar.PressTold(button); },
                    [](MessageBar& bar) { bar.ForgetTold(); },
                    [](const MessageBar& bar) { return bar.StayOfTold() == Stay::AWhile; }});
}

void MessageBarWidget::Close() {
    presenter_.Act([this] { source_.close(presenter_.Main().messageBar); });
}

/// Who reads the notice, or stands on a button of it, keeps it.
void MessageBarWidget::OnTimeOver() {
    const QWidget* focus = QApplication::focusWidget();
    const bool isUsed = underMouse() || (focus != nullptr && isAncestorOf(focus));
    if (isUsed || QApplication::activeModalWidget() != nullptr) return time_.start();
    Close();
}

void MessageBarWidget::Refresh() {
    const MessageBar& bar = presenter_.Main().messageBar;
    if (bar.Changes() == changes_) return;
    changes_ = bar.Changes();
    const Notice* notice = source_.notice(bar);
    if (notice != nullptr) ShowNotice(*notice);
    setVisible(notice != nullptr);
}

void MessageBarWidget::ShowNotice(const Notice& notice) {
    const QString text = ToQt(notice.text);
    const bool isPassing = source_.isPassing(presenter_.Main().messageBar);
    if (!isPassing) time_.stop();
    bool isNew = isHidden() || (isPassing && text_->text() != text);
    if (isNew && isPassing) time_.start();
    text_->setText(text);
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
    button->setObjectName(source_.name + QStringLiteral("Button(%1)").arg(index));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this, [this, index] {
        presenter_.Act([this, index] { source_.press(presenter_.Main().messageBar, index); });
    });
    buttonRow_->layout()->addWidget(button);
    return button;
}

}  // namespace swiftroll::ui
