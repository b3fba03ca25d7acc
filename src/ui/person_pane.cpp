#include "person_pane.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>

#include "layout.h"
#include "qt_text.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

/// Width of the window below which the panel folds by itself.
constexpr int kWideWindow = 1200;
constexpr int kHandleWidth = 18;

}  // namespace

PersonPane::PersonPane(Presenter& presenter, QSplitter& sides)
    : QObject(&sides),
      presenter_(presenter),
      binder_(presenter, presenter.Main().personPanel),
      sides_(sides),
      view_(new PersonView(presenter, binder_)),
      handle_(BuildHandle()) {
    for (QWidget* widget : {static_cast<QWidget*>(view_), handle_}) {
        sides_.addWidget(widget);
        sides_.setStretchFactor(sides_.indexOf(widget), 0);
        sides_.setCollapsible(sides_.indexOf(widget), false);
    }
    sides_.setStretchFactor(0, 1);
    sides_.installEventFilter(this);
    AddKey(presenter_.Main().personPanel.cmdPersonPanel);
    AddKey(presenter_.Main().personPanel.cmdPersonBack);
    presenter_.OnRefresh([this] { Refresh(); });
}

QWidget* PersonPane::BuildHandle() {
    auto* handle = new QWidget;
    auto* unfold = new QToolButton;
    const Command& command = presenter_.Main().personPanel.cmdPersonPanel;
    unfold->setIcon(ThemedIcon(QStringLiteral("previous")));
    unfold->setToolTip(ToQt(command.Tip));
    connect(unfold, &QToolButton::clicked, this,
            [this, &command] { presenter_.Act([&] { command.Click(); }); });
    unfold->setObjectName(QStringLiteral("personUnfold"));
    unfold->setAccessibleName(QStringLiteral("Montrer le panneau"));
    unfold->setFocusPolicy(Qt::StrongFocus);
    unfold->setAutoRaise(true);
    unfold->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    auto* row = new QHBoxLayout(handle);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(unfold);
    handle->setFixedWidth(kHandleWidth);
    return handle;
}

/// The key of a command that stands in no menu; it works while the list is seen.
void PersonPane::AddKey(Command& command) {
    auto* action = new QAction(&sides_);
    action->setShortcut(QKeySequence(ToQt(command.Key)));
    connect(action, &QAction::triggered, this,
            [this, &command] { presenter_.Act([&] { command.Click(); }); });
    sides_.addAction(action);
}

bool PersonPane::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        presenter_.Main().personPanel.TakeRoom(sides_.window()->width() >= kWideWindow);
        Refresh();
    }
    return QObject::eventFilter(object, event);
}

void PersonPane::Refresh() {
    const bool isOpen = presenter_.Main().personPanel.IsOpen();
    view_->setVisible(isOpen);
    handle_->setVisible(!isOpen);
}

}  // namespace swiftroll::ui
