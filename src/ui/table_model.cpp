#include "table_model.h"

#include <QApplication>
#include <QBrush>
#include <QPalette>

#include "column_marks.h"
#include "qt_text.h"

namespace swiftroll::ui {

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

namespace {

QBrush FaintInk() {
    QColor ink = QApplication::palette().color(QPalette::ButtonText);
    ink.setAlphaF(0.5F);
    return ink;
}

}  // namespace

bool TableModel::Sync() {
    filter_.Sync();
    const int rows = filter_.Count();
    const bool cleared = std::exchange(clearings_, table_.Clearings()) != table_.Clearings();
    const bool others = std::exchange(filterChanges_, filter_.Changes()) != filter_.Changes();
    if (rows == shownRows_ && !cleared && !others) return false;
    if (rows > shownRows_ && shownRows_ > 0 && !cleared && !others) {
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

std::optional<Row> TableModel::RowAt(int place) const {
    if (place < 0 || place >= filter_.Count()) return std::nullopt;
    const std::int32_t row = filter_.RowAt(place);
    if (row > table_.Count()) return std::nullopt;
    return table_.Item(row);
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
            // The marks stand at the left of the caption, and the caption beside them.
            return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        case Qt::ToolTipRole:
            return HeaderTip ? ToQt(HeaderTip(column)) : QVariant();
        case Qt::ForegroundRole:
            return isFaint && isFaint(column.Index) ? QVariant(FaintInk()) : QVariant();
        default:
            return {};
    }
}

}  // namespace swiftroll::ui
