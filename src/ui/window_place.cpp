#include "window_place.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <optional>

namespace swiftroll::ui {
namespace {

struct Shown {
    QRect place;
    bool isMaximised = false;
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

    /// Notes the sides that changed. A window that was restored keeps what the settings told of a side until
    /// the user changes it: what it got instead on this screen is looked at, and not noted, when it is
    /// painted first. The frame is known only after the first move; what it changes is noted later.
    void Note(QEvent::Type type) {
        WindowPlace& place = window_.Place;
        if (place.known && !last_ && type != QEvent::Paint) return;
        const Shown now = ShownNow(), last = last_.value_or(now);
        const auto note = [&](auto& side, auto present, auto before) {
            if (!place.known || present != before) side = present;
        };
        note(place.top, now.place.top(), last.place.top());
        note(place.left, now.place.left(), last.place.left());
        note(place.width, now.place.width(), last.place.width());
        note(place.height, now.place.height(), last.place.height());
        note(place.maximised, now.isMaximised, last.isMaximised);
        place.known = true;
        last_ = now;
    }

    QWidget& widget_;
    Window& window_;
    QPoint frame_;
    std::optional<Shown> last_;
};

int TitleHeight(const QWidget& widget) {
    return widget.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &widget);
}

/// What fits on a screen of a window with its frame.
QRect FittedTo(const QRect& screen, QRect place, const QWidget& widget) {
    const int title = TitleHeight(widget);
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

QSize RoomOnScreen(const QWidget& widget) {
    return widget.screen()->availableGeometry().size() - QSize(0, TitleHeight(widget));
}

void PlaceFirst(QWidget& widget, QSize size) {
    const QRect screen = widget.screen()->availableGeometry();
    const QSize room = RoomOnScreen(widget);
    widget.resize(size.boundedTo(room));
    const QSize rest = room - widget.size();
    widget.move(screen.topLeft() + QPoint(std::max(rest.width(), 0), std::max(rest.height(), 0)) / 2);
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
