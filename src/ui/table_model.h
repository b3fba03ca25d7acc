#pragma once

#include <QAbstractTableModel>

#include "tables/table.h"

namespace swiftroll::ui {

/// A table of the core as a model of the toolkit. It holds nothing of the table but its row count: cells are
/// asked for when they are painted. The table may change at any time; `Sync` tells the views.
class TableModel : public QAbstractTableModel {
  public:
    explicit TableModel(Table& table) : table_(table) {}

    Table& Data() const { return table_; }
    /// Brings the row count up to date; true when it changed.
    bool Sync();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The row of the table, or nothing when it has gone since.
    std::optional<Row> RowAt(int row) const;

  private:
    Table& table_;
    int shownRows_ = 0;
    std::uint32_t clearings_ = 0;
};

}  // namespace swiftroll::ui
