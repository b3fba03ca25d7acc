#include "table_model.h"

#include "column_marks.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

Qt::Alignment AlignmentOf(Alignment alignment) {
    switch (alignment) {
        case Alignment::Right:
            return Qt::AlignRight | Qt::AlignVCenter;
        case Alignment::Centre:
            return Qt::AlignCenter;
        default:
            return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

}  // namespace

bool TableModel::Sync() {
    const int rows = table_.Count();
    const bool cleared = std::exchange(clearings_, table_.Clearings()) != table_.Clearings();
    if (rows == shownRows_ && !cleared) return false;
    if (rows > shownRows_ && shownRows_ > 0 && !cleared) {
        beginInsertRows({}, shownRows_, rows - 1);
        shownRows_ = rows;
        endInsertRows();
    } else {
        beginResetModel();
        shownRows_ = rows;
        endResetModel();
    }
    return true;
}

int TableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shownRows_; }

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table_.ColumnCount();
}

std::optional<Row> TableModel::RowAt(int row) const {
    if (row < 0 || row >= table_.Count()) return std::nullopt;
    return table_.Item(static_cast<std::int32_t>(row + 1));
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    const auto row = index.isValid() ? RowAt(index.row()) : std::nullopt;
    if (!row) return {};
    const ColumnId column = ColumnId::OfSection(index.column());
    switch (role) {
        case Qt::DisplayRole:
            table_.Need(*row);
            return ToQt(row->Cell(column));
        case Qt::TextAlignmentRole:
            return QVariant(AlignmentOf(table_.ColumnAt(column).Facts->align));
        case Qt::CheckStateRole:
            return index.column() == 0 ? QVariant(row->Checked() ? Qt::Checked : Qt::Unchecked) : QVariant();
        default:
            return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= table_.ColumnCount()) return {};
    const Column& column = table_.ColumnAt(ColumnId::OfSection(section));
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(column.Caption);
        case Qt::DecorationRole:
            return ColumnMarks(column.Icon);
        case Qt::TextAlignmentRole:
            return QVariant(AlignmentOf(column.Facts->align));
        default:
            return {};
    }
}

}  // namespace swiftroll::ui
