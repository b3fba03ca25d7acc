#include "finding_model.h"

#include <QPainter>
#include <QPixmap>

#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr int kDotSize = 12;

/// A dot in the colour of a severity; the word stands beside it.
QPixmap DotOf(modCheck::Severity severity) {
    constexpr QRgb kColours[] = {0xFF4A90B8, 0xFFE0930F, 0xFFD64040};
    QPixmap dot(kDotSize, kDotSize);
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kColours[static_cast<std::size_t>(severity)]));
    painter.drawEllipse(1, 1, kDotSize - 2, kDotSize - 2);
    return dot;
}

bool IsNumber(modCheck::FindingColumn column) {
    return column == modCheck::FindingColumn::Rule || column == modCheck::FindingColumn::Line;
}

Qt::Alignment AlignmentOf(modCheck::FindingColumn column) {
    return Qt::AlignVCenter | (IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft);
}

}  // namespace

void FindingModel::Sync() {
    if (std::exchange(shownChanges_, findings_.Changes()) == findings_.Changes()) return;
    beginResetModel();
    shownRows_ = static_cast<int>(findings_.Count());
    endResetModel();
}

int FindingModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shownRows_; }

int FindingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(modCheck::kFindingColumns.size());
}

QVariant FindingModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= findings_.Count()) return {};
    const modCheck::FindingColumn column =
        modCheck::kFindingColumns[static_cast<std::size_t>(index.column())].column;
    const modCheck::RuleFacts& facts = modCheck::FactsOf(findings_.At(row).rule);
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(findings_.Cell(row, column));
        case Qt::ToolTipRole:
            return column == modCheck::FindingColumn::Rule ? ToQt(facts.name)
                                                           : ToQt(findings_.Cell(row, column));
        case Qt::DecorationRole:
            if (column != modCheck::FindingColumn::Severity) return {};
            return DotOf(facts.severity);
        case Qt::TextAlignmentRole:
            return QVariant(AlignmentOf(column));
        default:
            return {};
    }
}

QVariant FindingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const modCheck::FindingColumnTexts& column = modCheck::kFindingColumns[static_cast<std::size_t>(section)];
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(column.caption);
        case Qt::TextAlignmentRole:
            return QVariant(AlignmentOf(column.column));
        default:
            return {};
    }
}

void FindingModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columnCount()) return;
    findings_.SortBy(modCheck::kFindingColumns[static_cast<std::size_t>(column)].column,
                     order == Qt::DescendingOrder);
    Sync();
}

}  // namespace swiftroll::ui
