#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

namespace swiftroll::ui {

/// The parts of a window, among which F6 and Shift+F6 lead the keyboard: each part is entered where it was
/// left.
class Panes : public QObject {
  public:
    explicit Panes(QWidget& window);

    /// A part stands behind those that were added before.
    void Add(QWidget& pane);

  private:
    struct Pane {
        QPointer<QWidget> widget;
        QPointer<QWidget> lastFocus;
    };
    void Go(int step);
    void NoteFocus(QWidget* focus);
    int PaneOf(const QWidget* focus) const;
    /// False when nothing in the pane takes the focus.
    static bool Enter(const Pane& pane);

    std::vector<Pane> panes_;
};

}  // namespace swiftroll::ui
