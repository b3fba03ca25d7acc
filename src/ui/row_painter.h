#pragma once

#include <QAbstractItemView>
#include <QHeaderView>
#include <QPainter>

#include "tables/table.h"

namespace swiftroll::ui {

/// Space at both sides of the text in a cell, in pixels.
inline constexpr int kCellMargin = 4;

/// What a row looks like beside its cells.
struct RowState {
    bool isAlternate = false;
    /// Whether it is the row that the keyboard works with.
    bool isCurrent = false;
    /// Whether it is parted from the row above by a line.
    bool beginsGroup = false;
};

/// Paints the rows of a table: the tick, the cells in the order of the columns, and the highlight.
class RowPainter {
  public:
    RowPainter(const QAbstractItemView& view, const QHeaderView& header) : view_(view), header_(header) {}

    /// Paints a row whose place in the viewport is `line`.
    void Paint(QPainter& painter, const Table& table, const RowView& row, const QRect& line,
               const RowState& state) const;
    /// Where the tick stands in a row at `line`.
    QRect TickRect(const QRect& line) const;
    /// The part of a row that holds the text of a column.
    QRect TextRect(const QRect& line, int section) const;
    /// The first column that is seen, -1 if none is.
    int FirstSection() const;

  private:
    QColor PaintGround(QPainter& painter, const RowView& row, const QRect& line, bool isAlternate) const;
    void PaintTick(QPainter& painter, const RowView& row, const QRect& line) const;

    const QAbstractItemView& view_;
    const QHeaderView& header_;
};

}  // namespace swiftroll::ui
