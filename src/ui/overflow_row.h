#pragma once

#include <QFrame>
#include <QToolButton>
#include <vector>

namespace swiftroll::ui {

/// Widgets beside each other. Those that do not fit stand below each other in a panel, which a button at the
/// end of the row opens, and work there as in the row.
class OverflowRow : public QWidget {
  public:
    OverflowRow();

    /// Puts a widget behind the others; what is added last leaves the row first.
    void Add(QWidget* item);
    /// Moves what is added from now on to the right end of the row, where there is room.
    void AddStretch();
    /// The button that opens the panel; it is only there while something does not fit.
    QToolButton& More() const { return *more_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void Arrange();
    std::size_t CountThatFits() const;
    int WidthOf(std::size_t count) const;
    void MoveToPanel(std::size_t first);
    void OrderFocus(std::size_t first, std::size_t last);
    void OpenPanel();

    std::vector<QWidget*> items_;
    std::size_t inRow_ = 0;       // the first items, which stand in the row
    std::size_t stretchAt_ = -1;  // the item before which the free room lies
    QToolButton* more_;
    QFrame* panel_;
};

}  // namespace swiftroll::ui
