#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "list/row_filter.h"

namespace swiftroll::ui {

/// How the toolkit calls an alignment.
Qt::Alignment AlignmentOf(Alignment alignment);

/// Those rows of a table of the core that its filter shows, as a model of the toolkit. It holds nothing of
/// the table but the row count: cells are asked for when they are painted. The table may change at any time;
/// `Sync` tells the views.
class TableModel : public QAbstractTableModel {
  public:
    TableModel(Table& table, RowFilter& filter) : table_(table), filter_(filter) {}

    Table& Data() const { return table_; }
    RowFilter& Filter() const { return filter_; }
    /// Brings the rows up to date; true when other ones are shown.
    bool Sync();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The row of the table at a place on the screen, or nothing when it has gone since.
    std::optional<Row> RowAt(int place) const;
    /// Where a row stands on the screen; no index for one that the filter hides.
    QModelIndex IndexOf(const Row& row) const { return index(filter_.PlaceOf(row.Index()), 0); }

    /// What the tip of a header says.
    std::function<Text(const Column& column)> HeaderTip;
    /// Whether the header of a column is faint; none is without it.
    std::function<bool(ColumnId column)> isFaint;

  private:
    Table& table_;
    RowFilter& filter_;
    std::uint64_t filterChanges_ = 0;
    int shownRows_ = 0;
    std::uint32_t clearings_ = 0;
};

}  // namespace swiftroll::ui
