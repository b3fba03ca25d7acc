#include "ordered_list_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace swiftroll::ui {
namespace {

class Reorderer : public QObject {
  public:
    Reorderer(QListWidget& list, std::function<void(int, int)> move)
        : QObject(&list), list_(list), move_(std::move(move)) {
        list.viewport()->installEventFilter(this);
        list.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
                pressed_ = RowAt(*static_cast<QMouseEvent*>(event));
                return false;
            case QEvent::MouseMove:
                // The pressed row stays the selected one while the mouse travels.
                if (pressed_ < 0) return false;
                list_.viewport()->setCursor(Qt::SizeVerCursor);
                return true;
            case QEvent::MouseButtonRelease: {
                list_.viewport()->unsetCursor();
                const int from = std::exchange(pressed_, -1);
                Move(from, RowAt(*static_cast<QMouseEvent*>(event)));
                return false;
            }
            case QEvent::KeyPress:
                return OnKey(*static_cast<QKeyEvent*>(event));
            default:
                return false;
        }
    }

  private:
    int RowAt(const QMouseEvent& event) const { return list_.indexAt(event.position().toPoint()).row(); }
    bool OnKey(const QKeyEvent& event) {
        const int step = event.key() == Qt::Key_Up ? -1 : event.key() == Qt::Key_Down ? 1 : 0;
        if (step == 0 || !(event.modifiers() & Qt::ControlModifier)) return false;
        Move(list_.currentRow(), list_.currentRow() + step);
        return true;
    }
    void Move(int from, int to) {
        if (from < 0 || to < 0 || to >= list_.count() || from == to) return;
        move_(from, to);
        list_.setCurrentRow(to);
    }

    QListWidget& list_;
    std::function<void(int, int)> move_;
    int pressed_ = -1;
};

}  // namespace

void LetUserReorder(QListWidget& list, std::function<void(int from, int to)> move) {
    new Reorderer(list, std::move(move));  // owned by the list
}

}  // namespace swiftroll::ui
