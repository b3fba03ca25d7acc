#include "window_place.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace swiftroll::ui {
namespace {

class PlaceKeeper : public QObject {
  public:
    PlaceKeeper(QWidget& widget, Window& window) : QObject(&widget), widget_(widget), window_(window) {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        // The frame around a window that was just shown is known only after its first move: what is noted
        // then is mended when it is painted or closed.
        const QEvent::Type type = event->type();
        const bool changes = type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show ||
                             type == QEvent::Paint || type == QEvent::Close;
        // The place of a minimised or maximised window is that of its normal state.
        if (changes && widget_.isVisible()) {
            const bool isNormal = !(widget_.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized));
            const QRect place = isNormal ? QRect(widget_.pos(), widget_.size()) : widget_.normalGeometry();
            window_.Place.top = place.top();
            window_.Place.left = place.left();
            window_.Place.width = place.width();
            window_.Place.height = place.height();
            window_.Place.known = true;
        }
        return false;
    }

  private:
    QWidget& widget_;
    Window& window_;
};

}  // namespace

void KeepPlace(QWidget& widget, Window& window, bool resizable) {
    window.Place.width = widget.width();
    window.Place.height = widget.height();
    window.Place.resizable = resizable;
    new PlaceKeeper(widget, window);  // owned by the widget
}

void RestorePlace(QWidget& widget, const Window& window) {
    if (!window.Place.known) return;
    if (window.Place.resizable) widget.resize(window.Place.width, window.Place.height);
    const QRect screens = QGuiApplication::primaryScreen()->availableVirtualGeometry();
    const QPoint corner(window.Place.left, window.Place.top);
    // A screen that is gone must not take the window with it.
    if (screens.adjusted(0, 0, -100, -100).contains(corner)) widget.move(corner);
}

}  // namespace swiftroll::ui
