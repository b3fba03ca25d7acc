#include "row_painter.h"

#include <QStyleOptionButton>

#include "colours.h"
#include "qt_text.h"
#include "table_model.h"

namespace swiftroll::ui {

int RowPainter::FirstSection() const {
    for (int visual = 0; visual < header_.count(); ++visual) {
        const int section = header_.logicalIndex(visual);
        if (!header_.isSectionHidden(section)) return section;
    }
    return -1;
}

QRect RowPainter::TickRect(const QRect& line) const {
    const int section = FirstSection();
    if (section < 0) return {};
    const int size = view_.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &view_);
    return QRect(header_.sectionViewportPosition(section) + kCellMargin,
                 line.top() + (line.height() - size) / 2, size, size);
}

QRect RowPainter::TextRect(const QRect& line, int section) const {
    QRect cell(header_.sectionViewportPosition(section), line.top(), header_.sectionSize(section),
               line.height());
    if (section == FirstSection()) cell.setLeft(TickRect(line).right() + 1);
    return cell.adjusted(kCellMargin, 0, -kCellMargin, 0);
}

QColor RowPainter::PaintGround(QPainter& painter, const RowView& row, const QRect& line,
                               bool isAlternate) const {
    const QPalette& palette = view_.palette();
    const QPalette::ColorGroup group = view_.hasFocus() ? QPalette::Active : QPalette::Inactive;
    if (row.Selected()) {
        painter.fillRect(line, palette.brush(group, QPalette::Highlight));
        return palette.color(group, QPalette::Highlight);
    }
    if (isAlternate) painter.fillRect(line, palette.alternateBase());
    return palette.color(group, QPalette::Base);
}

void RowPainter::PaintTick(QPainter& painter, const RowView& row, const QRect& line) const {
    QStyleOptionButton tick;
    tick.initFrom(&view_);
    tick.rect = TickRect(line);
    tick.state = QStyle::State_Enabled | (row.Checked() ? QStyle::State_On : QStyle::State_Off);
    view_.style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &tick, &painter, &view_);
}

void RowPainter::Paint(QPainter& painter, const Table& table, const RowView& row, const QRect& line,
                       const RowState& state) const {
    const QPalette& palette = view_.palette();
    const QPalette::ColorGroup group = view_.hasFocus() ? QPalette::Active : QPalette::Inactive;
    const QColor ground = PaintGround(painter, row, line, state.isAlternate);
    PaintTick(painter, row, line);
    const CellLook whole = row.Look();
    const QFont plain = view_.font();
    QFont bold = plain;
    bold.setBold(true);
    for (int section = 0; section < header_.count(); ++section) {
        if (header_.isSectionHidden(section)) continue;
        const ColumnId column = ColumnId::OfSection(section);
        const QRect cell = TextRect(line, section);
        if (cell.right() < 0 || cell.left() > view_.viewport()->width()) continue;
        const TextView text = row.Cell(column);
        if (text.empty()) continue;
        const CellLook look = section == 0 ? whole : row.Look(column);
        const std::uint32_t colour = look.ForeColor != 0 ? look.ForeColor : whole.ForeColor;
        painter.setFont(look.Bold || whole.Bold ? bold : plain);
        if (colour != 0) {
            painter.setPen(LegibleOn(ground, ColourOf(colour)));
        } else {
            painter.setPen(palette.color(group, row.Selected() ? QPalette::HighlightedText : QPalette::Text));
        }
        const Qt::Alignment alignment = AlignmentOf(table.ColumnAt(column).Facts->align);
        painter.drawText(cell, static_cast<int>(alignment) | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(ToQt(text), Qt::ElideRight, cell.width()));
    }
    if (state.beginsGroup) {
        painter.setPen(palette.color(QPalette::Mid));
        painter.drawLine(line.topLeft(), line.topRight());
    }
    if (state.isCurrent) {
        QStyleOptionFocusRect frame;
        frame.initFrom(&view_);
        frame.rect = line;
        frame.backgroundColor = ground;
        view_.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, &view_);
    }
}

}  // namespace swiftroll::ui
