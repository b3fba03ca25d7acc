#include "window_place.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <optional>

namespace swiftroll::ui {
namespace {

struct Shown {
    QRect place;
    bool isMaximised = false;
    bool operator==(const Shown&) const = default;
};

class PlaceKeeper : public QObject {
  public:
    PlaceKeeper(QWidget& widget, Window& window) : QObject(&widget), widget_(widget), window_(window) {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        const QEvent::Type type = event->type();
        const bool changes = type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show ||
                             type == QEvent::Paint || type == QEvent::Close ||
                             type == QEvent::WindowStateChange;
        if (changes && widget_.isVisible()) Note(type);
        return false;
    }

  private:
    /// The place of a minimised or maximised window is that of its normal state, with the frame that it had.
    Shown ShownNow() {
        const Qt::WindowStates state = widget_.windowState();
        const bool isMaximised = (state & Qt::WindowMaximized) != 0;
        if (isMaximised || (state & Qt::WindowMinimized) != 0) {
            return {widget_.normalGeometry().translated(-frame_), isMaximised};
        }
        frame_ = widget_.geometry().topLeft() - widget_.pos();
        return {QRect(widget_.pos(), widget_.size()), false};
    }

    /// A window that was restored keeps the place that it had then until the user gives it another one. The
    /// frame around a window that was just shown is known only after its first move: what it got is known,
    /// and what is noted then is mended, when it is painted.
    void Note(QEvent::Type type) {
        const Shown now = ShownNow();
        if (!window_.Place.known) isUsersOwn_ = true;
        if (!restored_ && type == QEvent::Paint) restored_ = now;
        if (restored_ && now != *restored_) isUsersOwn_ = true;
        if (!isUsersOwn_) return;
        WindowPlace& place = window_.Place;
        place.top = now.place.top();
        place.left = now.place.left();
        place.width = now.place.width();
        place.height = now.place.height();
        place.maximised = now.isMaximised;
        place.known = true;
    }

    QWidget& widget_;
    Window& window_;
    QPoint frame_;
    std::optional<Shown> restored_;  // what became of the restored place on this screen
    bool isUsersOwn_ = false;
};

/// What fits on a screen of a window with its frame.
QRect FittedTo(const QRect& screen, QRect place, const QWidget& widget) {
    const int title = widget.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &widget);
    if (place.width() > screen.width()) {
        place.setLeft(screen.left());
        place.setWidth(screen.width());
    }
    if (place.height() > screen.height() - title) {
        place.setTop(screen.top());
        place.setHeight(screen.height() - title);
    }
    return place;
}

}  // namespace

void KeepPlace(QWidget& widget, Window& window, bool resizable) {
    window.Place.width = widget.width();
    window.Place.height = widget.height();
    window.Place.resizable = resizable;
    new PlaceKeeper(widget, window);  // owned by the widget
}

void RestorePlace(QWidget& widget, const Window& window) {
    const WindowPlace& place = window.Place;
    if (!place.known) return;
    const QPoint corner(place.left, place.top);
    const QScreen* screen = QGuiApplication::screenAt(corner);
    const QRect available =
        (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QSize size = place.resizable ? QSize(place.width, place.height) : widget.size();
    const QRect fitted = FittedTo(available, QRect(corner, size), widget);
    if (place.resizable) widget.resize(fitted.size());
    // A screen that is gone must not take the window with it.
    const QRect screens = QGuiApplication::primaryScreen()->availableVirtualGeometry();
    if (screens.adjusted(0, 0, -100, -100).contains(fitted.topLeft())) widget.move(fitted.topLeft());
    if (place.maximised) widget.setWindowState(widget.windowState() | Qt::WindowMaximized);
}

}  // namespace swiftroll::ui
