#pragma once

#include <QWidget>
#include <functional>

#include "tables/column_id.h"

namespace swiftroll::ui {

/// A column in the strip of the grouping, as a chip with a cross. It is dragged, moved by Ctrl with the
/// arrows and taken out by its cross or the Delete key; arrows alone lead to its neighbours.
class GroupingChip : public QWidget {
  public:
    /// What the strip does for a chip.
    struct Actions {
        std::function<void(GroupingChip&chip)> dragged, dropped, dragCancelled;
        std::function<void(GroupingChip&chip, int step)> move, goTo;
        std::function<void(GroupingChip& chip)> takeOut;
    };
    GroupingChip(ColumnId column, bool isGroup, const Actions& actions, QWidget* parent);

    ColumnId Column() const { return column_; }
    const QString& Text() const { return text_; }
    void SetText(const QString& text);
    bool IsDragged() const { return isDragged_; }
    /// The middle of the cross.
    QPoint CrossAt() const { return CrossRect().center(); }
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

  private:
    QRect CrossRect() const;
    bool OnKey(const QKeyEvent& event);
    void ShowMenu(const QPoint& point);

    ColumnId column_;
    bool isGroup_;
    const Actions& actions_;
    QString text_;
    QPoint pressedAt_;
    bool isPressed_ = false, isCrossPressed_ = false, isDragged_ = false;
};

}  // namespace swiftroll::ui
