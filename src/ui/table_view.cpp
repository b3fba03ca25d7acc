#include "table_view.h"

#include <QApplication>
#include <QDrag>
#include <QHelpEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QToolTip>
#include <algorithm>

#include "colours.h"
#include "column_marks.h"
#include "layout.h"
#include "list_keys.h"
#include "person_edit.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr int kCellMargin = 4;
/// Columns count their width in hundredths of a millimetre, the screen in 96ths of an inch.
constexpr int kPixelsPerInch = 96, kUnitsPerInch = 2540;

int PixelsOf(std::int32_t width) { return std::clamp(width * kPixelsPerInch / kUnitsPerInch, 0, 10000); }
std::int32_t UnitsOf(int pixels) { return pixels * kUnitsPerInch / kPixelsPerInch; }

}  // namespace

TableView::TableView(Presenter& presenter, Table& table, QWidget* parent)
    : QAbstractItemView(parent),
      presenter_(presenter),
      model_(table),
      header_(new QHeaderView(Qt::Horizontal, this)) {
    setObjectName(ToQt(table.Name()));
    setModel(&model_);
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setFrameShape(StyledPanel);
    viewport()->setAutoFillBackground(true);
    BindHeader();
    presenter_.RegisterFocus(*this, table);
    presenter_.OnRefresh([this] { Refresh(); });
    table.OnEnsureVisible = [this](const Row& row) {
        if (model_.Sync()) updateGeometries();
        const QModelIndex index = model_.index(row.Index() - 1, 0);
        if (isVisible()) return scrollTo(index);
        // When it is shown, it may have another size.
        awaited_ = index;
    };
}

void TableView::BindHeader() {
    header_->setModel(&model_);
    header_->setSectionsMovable(true);
    header_->setSectionsClickable(true);
    header_->setHighlightSections(false);
    header_->setMinimumSectionSize(8);
    header_->setIconSize(QSize(kMarksWidth, kMarksHeight));
    header_->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header_->setTextElideMode(Qt::ElideRight);
    connect(header_, &QHeaderView::sectionMoved, this, [this](int section, int, int visual) {
        if (isShowingColumns_) return;
        presenter_.Act(
            [&] { Data().MoveColumn(ColumnId::OfSection(section), static_cast<std::int16_t>(visual + 1)); });
    });
    connect(header_, &QHeaderView::sectionResized, this, [this](int section, int, int size) {
        if (!isShowingColumns_) Data().ColumnAt(ColumnId::OfSection(section)).Width = UnitsOf(size);
        updateGeometries();
        viewport()->update();
    });
    connect(header_, &QHeaderView::sectionClicked, this, [this](int section) {
        presenter_.Act([&] {
            presenter_.Main().lists.lvw_ColumnClick(Data(), Data().ColumnAt(ColumnId::OfSection(section)));
        });
    });
}

/// Brings rows, columns and marks up to date with the table.
void TableView::Refresh() {
    if (presenter_.Main().bTablesLocked) return;
    isShowingColumns_ = true;
    for (std::int16_t position = 1; position <= Data().ColumnCount(); ++position) {
        for (const Column& column : Data().Columns()) {
            if (column.Position != position) continue;
            const int from = header_->visualIndex(column.Index.Section());
            if (from >= 0 && from != position - 1) header_->moveSection(from, position - 1);
            if (UnitsOf(header_->sectionSize(column.Index.Section())) != column.Width) {
                header_->resizeSection(column.Index.Section(), PixelsOf(column.Width));
            }
        }
    }
    isShowingColumns_ = false;
    if (model_.Sync()) updateGeometries();
    viewport()->update();
    header_->viewport()->update();
}

int TableView::RowHeight() const {
    const int tick = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    return std::max(fontMetrics().height(), tick) + 4;
}

int TableView::RowAt(const QPoint& point) const {
    if (!viewport()->rect().contains(point) || header_->logicalIndexAt(point.x()) < 0) return -1;
    const int row = verticalScrollBar()->value() + point.y() / RowHeight();
    return row < model_.rowCount() ? row : -1;
}

void TableView::HitTest(const QPoint& point) {
    const int row = RowAt(point);
    presenter_.Main().lists.HitTest(row, row < 0 ? -1 : header_->logicalIndexAt(point.x()));
}

/// The cell that the menu of the keyboard is about: the one under the pointer, or where the pointer is not
/// over the list, one of the current row, in the column that was clicked last.
void TableView::HitTestOfKeyboard() {
    const QPoint point = viewport()->mapFromGlobal(QCursor::pos());
    if (viewport()->rect().contains(point)) return HitTest(point);
    const int row = CurrentRow(), clicked = presenter_.Main().lists.lHitCol.Section();
    const bool isColumn = clicked >= 0 && clicked < header_->count();
    presenter_.Main().lists.HitTest(row, row < 0 ? -1 : isColumn ? clicked : header_->logicalIndex(0));
    scrollTo(model_.index(row, 0));
}

QRect TableView::visualRect(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    return QRect(header_->sectionViewportPosition(index.column()),
                 (index.row() - verticalScrollBar()->value()) * RowHeight(),
                 header_->sectionSize(index.column()), RowHeight());
}

QRect TableView::TickRect(int row) const {
    const int size = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    const QRect cell = visualRect(model_.index(row, header_->logicalIndex(0)));
    return QRect(cell.left() + kCellMargin, cell.top() + (cell.height() - size) / 2, size, size);
}

void TableView::scrollTo(const QModelIndex& index, ScrollHint) {
    if (!index.isValid()) return;
    const int page = std::max(1, viewport()->height() / RowHeight());
    QScrollBar& bar = *verticalScrollBar();
    if (index.row() < bar.value()) bar.setValue(index.row());
    if (index.row() >= bar.value() + page) bar.setValue(index.row() - page + 1);
}

QModelIndex TableView::indexAt(const QPoint& point) const {
    const int row = RowAt(point);
    return row < 0 ? QModelIndex() : model_.index(row, header_->logicalIndexAt(point.x()));
}

QModelIndex TableView::moveCursor(CursorAction, Qt::KeyboardModifiers) { return currentIndex(); }
int TableView::horizontalOffset() const { return horizontalScrollBar()->value(); }
int TableView::verticalOffset() const { return verticalScrollBar()->value() * RowHeight(); }
bool TableView::isIndexHidden(const QModelIndex&) const { return false; }

void TableView::PlaceHeader() {
    const int height = header_->sizeHint().height();
    setViewportMargins(0, height, 0, 0);
    const QRect area = viewport()->geometry();
    header_->setGeometry(area.left(), area.top() - height, area.width(), height);
    header_->setOffset(horizontalOffset());
}

void TableView::updateGeometries() {
    PlaceHeader();
    const int page = std::max(1, viewport()->height() / RowHeight());
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setRange(0, std::max(0, model_.rowCount() - page));
    horizontalScrollBar()->setSingleStep(20);
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(0, header_->length() - viewport()->width()));
    QAbstractItemView::updateGeometries();
}

void TableView::scrollContentsBy(int dx, int) {
    if (dx != 0) header_->setOffset(horizontalOffset());
    viewport()->update();
}

int TableView::LastRowInView() const {
    return std::min(model_.rowCount(),
                    verticalScrollBar()->value() + viewport()->height() / RowHeight() + 1) -
           1;
}

void TableView::paintEvent(QPaintEvent*) {
    // Only now is a view that was hidden laid out for certain.
    scrollTo(std::exchange(awaited_, QPersistentModelIndex()));
    QPainter painter(viewport());
    if (model_.rowCount() == 0) return PaintHint(painter);
    const int height = RowHeight(), first = verticalScrollBar()->value(), current = CurrentRow();
    for (int row = first; row <= LastRowInView(); ++row) {
        if (const auto shown = model_.RowAt(row)) {
            Data().Need(*shown);
            PaintRow(painter, *shown, (row - first) * height, row % 2 != 0, row == current && hasFocus());
        }
    }
}

void TableView::PaintRow(QPainter& painter, const Row& row, int y, bool isAlternate, bool isCurrent) const {
    const QPalette::ColorGroup group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    const QRect line(0, y, std::min(viewport()->width(), header_->length() - horizontalOffset()),
                     RowHeight());
    const bool selected = row.Selected();
    const QColor ground = palette().color(group, selected ? QPalette::Highlight : QPalette::Base);
    if (selected) {
        painter.fillRect(line, palette().brush(group, QPalette::Highlight));
    } else if (isAlternate) {
        painter.fillRect(line, palette().alternateBase());
    }
    const CellLook whole = row.Look();
    const QFont plain = font();
    QFont bold = plain;
    bold.setBold(true);
    for (int visual = 0; visual < header_->count(); ++visual) {
        const int section = header_->logicalIndex(visual);
        QRect cell(header_->sectionViewportPosition(section), y, header_->sectionSize(section), RowHeight());
        if (cell.right() < 0 || cell.left() > viewport()->width()) continue;
        if (visual == 0) {
            QStyleOptionButton tick;
            tick.initFrom(this);
            const int size = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
            tick.rect = QRect(cell.left() + kCellMargin, y + (RowHeight() - size) / 2, size, size);
            tick.state = QStyle::State_Enabled | (row.Checked() ? QStyle::State_On : QStyle::State_Off);
            style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &tick, &painter, this);
            cell.setLeft(tick.rect.right() + 1);
        }
        const ColumnId column = ColumnId::OfSection(section);
        const TextView text = row.Cell(column);
        if (text.empty()) continue;
        const CellLook look = section == 0 ? whole : row.Look(column);
        const std::uint32_t colour = look.ForeColor != 0 ? look.ForeColor : whole.ForeColor;
        painter.setFont(look.Bold || whole.Bold ? bold : plain);
        if (colour != 0) {
            painter.setPen(LegibleOn(ground, ColourOf(colour)));
        } else {
            painter.setPen(palette().color(group, selected ? QPalette::HighlightedText : QPalette::Text));
        }
        const Qt::Alignment alignment =
            model_.headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
        cell.adjust(kCellMargin, 0, -kCellMargin, 0);
        painter.drawText(cell, static_cast<int>(alignment) | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(ToQt(text), Qt::ElideRight, cell.width()));
    }
    if (isCurrent) {
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.rect = line;
        frame.backgroundColor = ground;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
    }
}

void TableView::PaintHint(QPainter& painter) const {
    QColor faint = palette().color(QPalette::Text);
    faint.setAlphaF(0.65F);
    painter.setPen(faint);
    painter.drawText(viewport()->rect().adjusted(40, 20, -40, -20), Qt::AlignCenter | Qt::TextWordWrap,
                     hint_);
}

int TableView::CurrentRow() const {
    const auto current = Data().Current();
    return current ? current->Index() - 1 : -1;
}

void TableView::SetCurrent(int row) {
    if (const auto current = model_.RowAt(row)) Data().SetCurrent(*current);
}

/// Makes the rows from `first` to `last` the only selected ones.
void TableView::SelectOnly(int first, int last) {
    for (int row = 0; row < Data().Count(); ++row) {
        Data().Item(row + 1).SetSelected(row >= first && row <= last);
    }
}

void TableView::Select(int row, Qt::KeyboardModifiers modifiers) {
    auto clicked = model_.RowAt(row);
    if (!clicked) return;
    if (modifiers & Qt::ShiftModifier) {
        SelectOnly(std::min(anchor_, row), std::max(anchor_, row));
    } else if (modifiers & Qt::ControlModifier) {
        clicked->SetSelected(!clicked->Selected());
        anchor_ = row;
    } else {
        SelectOnly(row, row);
        anchor_ = row;
    }
    SetCurrent(row);
}

void TableView::ToggleTick(int row) {
    if (auto clicked = model_.RowAt(row)) {
        clicked->SetChecked(!clicked->Checked());
        SetCurrent(row);
    }
}

void TableView::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    const int row = RowAt(point);
    presenter_.Act([&] {
        HitTest(point);
        pressedRow_ = -1;
        selectsOnRelease_ = false;
        if (event->button() == Qt::RightButton) return SetCurrent(row);
        if (event->button() != Qt::LeftButton) return;
        if (row < 0) return SelectOnly(-1, -2);
        if (TickRect(row).adjusted(-3, -3, 3, 3).contains(point)) return ToggleTick(row);
        pressedAt_ = point;
        pressedRow_ = row;
        // A press on one of several selected rows may begin a drag of all of them.
        selectsOnRelease_ = event->modifiers() == Qt::NoModifier && model_.RowAt(row)->Selected();
        if (!selectsOnRelease_) Select(row, event->modifiers());
    });
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    if (pressedRow_ < 0 || !(event->buttons() & Qt::LeftButton)) return;
    const QPoint way = event->position().toPoint() - pressedAt_;
    if (way.manhattanLength() < QApplication::startDragDistance()) return;
    pressedRow_ = -1;
    selectsOnRelease_ = false;
    StartDrag();
}

void TableView::StartDrag() {
    Text text, person;
    presenter_.Act([&] {
        text = presenter_.Main().lists.DragText();
        person = presenter_.Main().lists.DragPerson();
    });
    if (text.empty()) return;
    auto* content = new QMimeData;
    content->setText(ToQt(text));
    if (!person.empty()) {
        content->setData(QLatin1String(kPersonFormat), QByteArray::fromStdString(person));
    }
    auto* drag = new QDrag(this);
    drag->setMimeData(content);
    drag->exec(Qt::CopyAction);
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    const int row = std::exchange(pressedRow_, -1);
    const bool selects = std::exchange(selectsOnRelease_, false);
    if (event->button() == Qt::RightButton) {
        presenter_.ActLater([this] { presenter_.Main().contextMenu.lvw_MouseUp(MouseButton::Right); });
    } else if (selects && row >= 0) {
        presenter_.Act([&] { Select(row, Qt::NoModifier); });
    }
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    const int row = RowAt(point);
    if (event->button() != Qt::LeftButton) return;
    if (row >= 0 && TickRect(row).adjusted(-3, -3, 3, 3).contains(point)) return mousePressEvent(event);
    presenter_.Act([&] {
        HitTest(point);
        presenter_.Main().lists.lvw_DblClick(Data());
    });
}

void TableView::MoveTo(int row, Qt::KeyboardModifiers modifiers) {
    if (model_.rowCount() == 0) return;
    row = std::clamp(row, 0, model_.rowCount() - 1);
    presenter_.Act([&] {
        if (modifiers & Qt::ControlModifier) {
            SetCurrent(row);
        } else {
            Select(row, modifiers);
        }
        scrollTo(model_.index(row, 0));
    });
}

void TableView::keyPressEvent(QKeyEvent* event) {
    const int row = CurrentRow(), page = verticalScrollBar()->pageStep();
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (OnListKey(*event)) return;
    switch (event->key()) {
        case Qt::Key_Up:
            return MoveTo(row - 1, modifiers);
        case Qt::Key_Down:
            return MoveTo(row + 1, modifiers);
        case Qt::Key_PageUp:
            return MoveTo(row - page, modifiers);
        case Qt::Key_PageDown:
            return MoveTo(row + page, modifiers);
        case Qt::Key_Home:
            return MoveTo(0, modifiers);
        case Qt::Key_End:
            return MoveTo(model_.rowCount() - 1, modifiers);
        case Qt::Key_Left:
        case Qt::Key_Right:
            horizontalScrollBar()->triggerAction(event->key() == Qt::Key_Left
                                                     ? QScrollBar::SliderSingleStepSub
                                                     : QScrollBar::SliderSingleStepAdd);
            return;
        case Qt::Key_Space:
            presenter_.Act([&] {
                if (modifiers & Qt::ControlModifier) return Select(row, Qt::ControlModifier);
                ToggleTick(row);
            });
            return;
        default:
            event->ignore();  // Escape and F1 belong to the window
    }
}

/// The keys of the list commands, which work on the cell that was clicked last, and of the context menu.
bool TableView::OnListKey(const QKeyEvent& event) {
    const std::optional<ListKey> key = ListKeyOf(event);
    if (!key) return false;
    presenter_.ActLater([this, key = *key] {
        if (key.OpensMenu()) {
            HitTestOfKeyboard();
            SetCurrent(presenter_.Main().lists.lHitRow);
        }
        presenter_.Main().contextMenu.lvw_KeyDown(key);
    });
    return true;
}

bool TableView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), ToQt(Data().Tip), viewport(), {}, kTipMilliseconds);
        return true;
    }
    return QAbstractItemView::viewportEvent(event);
}

void TableView::focusInEvent(QFocusEvent* event) {
    QAbstractItemView::focusInEvent(event);
    viewport()->update();
}

}  // namespace swiftroll::ui
