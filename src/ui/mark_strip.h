#pragma once

#include <QWidget>
#include <functional>
#include <tuple>
#include <vector>

#include "list/row_filter.h"

namespace swiftroll::ui {

/// A thin strip beside the scroll bar of a list, with a line where marked rows are. A click on it goes there.
class MarkStrip : public QWidget {
  public:
    static constexpr int kWidth = 7;

    /// `goTo` is called with the place on the screen of the row that was clicked.
    MarkStrip(const Table& table, const RowFilter& filter, std::function<void(int place)> goTo,
              QWidget* parent);

    /// Follows the marks; it costs a walk over the rows only when they changed.
    void Refresh();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void FindLines();

    const Table& table_;
    const RowFilter& filter_;
    std::function<void(int place)> goTo_;
    std::vector<bool> lines_;  // by pixel
    bool isDue_ = true;
    /// What was shown when they were found: changes of marks, of the order and of the filter, and rows.
    std::tuple<std::uint64_t, std::uint64_t, std::uint64_t, std::int32_t> seen_;
};

}  // namespace swiftroll::ui
