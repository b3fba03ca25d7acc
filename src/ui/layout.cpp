#include "layout.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QScrollArea>
#include <algorithm>

#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

/// Selects the text of a box that takes the focus. The click that gives the focus does not undo it, unless
/// the mouse is dragged over a part of the text.
class FocusSelector : public QObject {
  public:
    explicit FocusSelector(QLineEdit& edit) : QObject(&edit), edit_(edit) {
        edit.installEventFilter(this);
        // The text of a combo leaves the focus to the combo.
        if (edit.focusProxy() != nullptr) edit.focusProxy()->installEventFilter(this);
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::FocusIn) TakeFocus(static_cast<QFocusEvent*>(event)->reason());
        if (object != &edit_ || !isFirstClick_) return false;
        const auto place = [event] { return static_cast<QMouseEvent*>(event)->position().toPoint(); };
        if (event->type() == QEvent::MouseButtonPress) pressedAt_ = place();
        if (event->type() == QEvent::MouseButtonRelease) isFirstClick_ = false;
        return event->type() == QEvent::MouseMove && !StartsDrag(place());
    }

  private:
    void TakeFocus(Qt::FocusReason reason) {
        // A menu that closes, or another window, only gives back the focus that it had borrowed.
        if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
            reason == Qt::ActiveWindowFocusReason)
            return;
        isFirstClick_ = reason == Qt::MouseFocusReason;
        // After the press of the mouse, which would put the cursor in the text.
        QMetaObject::invokeMethod(&edit_, "selectAll", Qt::QueuedConnection);
    }
    bool StartsDrag(const QPoint& place) {
        if ((place - pressedAt_).manhattanLength() < QApplication::startDragDistance()) return false;
        isFirstClick_ = false;
        edit_.setCursorPosition(edit_.cursorPositionAt(pressedAt_));
        return true;
    }

    QLineEdit& edit_;
    QPoint pressedAt_;
    bool isFirstClick_ = false;
};

/// Holds a page in its middle, no wider than can be read, unless the letters need more.
class MiddleOfPage : public QWidget {
  public:
    explicit MiddleOfPage(QWidget* page) : page_(page) {
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->addStretch();
        row->addWidget(page, 1);
        row->addStretch();
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest) {
            page_->setMaximumWidth(std::max(kWidestPage, page_->minimumSizeHint().width()));
        }
        return QWidget::event(event);
    }

  private:
    QWidget* page_;
};

}  // namespace

Frame::Frame(const QString& caption, const QString& name)
    : box(new QGroupBox(caption)), grid(new QGridLayout(box)) {
    box->setObjectName(name);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setSpacing(kSpacing);
}

QCheckBox* NewCheckBox(Binder& binder, CheckBox& control) {
    auto* widget = new QCheckBox;
    binder.Bind(*widget, control);
    return widget;
}

QLineEdit* NewTextBox(Binder& binder, TextBox& control, int characters, const QString& description) {
    auto* widget = new QLineEdit;
    binder.Bind(*widget, control, description);
    widget->setFixedWidth(widget->fontMetrics().horizontalAdvance(QString(characters, QLatin1Char('0'))) +
                          16);
    SelectAllOnFocus(*widget);
    return widget;
}

QPushButton* NewButton(Binder& binder, Command& control) {
    auto* widget = new QPushButton;
    widget->setAutoDefault(false);
    binder.Bind(*widget, control);
    return widget;
}

QToolButton* NewToolButton(Binder& binder, Command& control, const QString& description,
                           const QString& picture) {
    auto* widget = new QToolButton;
    widget->setFocusPolicy(Qt::StrongFocus);
    if (!picture.isEmpty()) widget->setIcon(ThemedIcon(picture));
    binder.Bind(*widget, control, description);
    return widget;
}

QWidget* NewParameterSet(Binder& binder, ComboBox& names, Command& save, const QString& description) {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    auto* combo = new QComboBox;
    binder.Bind(*combo, names, description);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SelectAllOnFocus(*combo->lineEdit());
    row->addWidget(NewLabel(QStringLiteral("Jeu de paramètres"), combo));
    row->addWidget(combo, 1);
    row->addWidget(
        NewToolButton(binder, save, QStringLiteral("Sauver : ") + description, QStringLiteral("save")));
    return widget;
}

QWidget* NewOptionPage(QWidget* page) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(new MiddleOfPage(page));
    return area;
}

QLabel* NewLabel(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption);
    label->setBuddy(buddy);
    return label;
}

void SelectAllOnFocus(QLineEdit& edit) {
    new FocusSelector(edit);  // owned by the box
}

}  // namespace swiftroll::ui
