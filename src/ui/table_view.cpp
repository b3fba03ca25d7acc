#include "table_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "column_marks.h"
#include "column_widths.h"
#include "kinship/path_bands.h"
#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {

TableView::TableView(Presenter& presenter, Table& table, QWidget* parent)
    : QAbstractItemView(parent),
      presenter_(presenter),
      model_(table, presenter.Main().filters.Of(table)),
      header_(new QHeaderView(Qt::Horizontal, this)),
      painter_(*this, *header_),
      markStrip_(new MarkStrip(
          table, model_.Filter(), [this](int place) { CentreOn(place); }, this)) {
    setObjectName(ToQt(table.Name()));
    setModel(&model_);
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setFrameShape(StyledPanel);
    viewport()->setAutoFillBackground(true);
    BindHeader();
    BindColumns();
    presenter_.RegisterFocus(*this, table);
    presenter_.OnRefresh([this] { Refresh(); });
    table.OnEnsureVisible = [this](const Row& row) {
        if (model_.Sync()) updateGeometries();
        const QModelIndex index = model_.IndexOf(row);
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
}

/// What the user does with the columns.
void TableView::BindColumns() {
    ListColumns& columns = presenter_.Main().columns;
    model_.HeaderTip = [this, &columns](const Column& column) { return columns.TipOf(Data(), column); };
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
    connect(header_, &QHeaderView::sectionHandleDoubleClicked, this, [this, &columns](int section) {
        presenter_.Act([&] { columns.FitWidth(Data(), ColumnId::OfSection(section)); });
    });
    header_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header_, &QHeaderView::customContextMenuRequested, this, &TableView::ShowHeaderMenu);
    connect(header_, &QHeaderView::sectionClicked, this, [this](int section) {
        presenter_.Act([&] {
            presenter_.Main().lists.lvw_ColumnClick(Data(), Data().ColumnAt(ColumnId::OfSection(section)));
        });
    });
}

void TableView::ShowHeaderMenu(const QPoint& point) {
    setFocus();
    presenter_.ActLater([this, section = header_->logicalIndexAt(point)] {
        presenter_.Main().tabs.TableGotFocus(Data());
        presenter_.Main().lists.HitTest(-1, section);
        presenter_.Main().columns.Header_RightClick();
    });
}

/// Brings rows, columns and marks up to date with the table.
void TableView::Refresh() {
    if (presenter_.Main().bTablesLocked) return;
    ShowColumns();
    // A filter may have to look at all rows: it waits until they are seen.
    if ((isVisible() || !model_.Filter().IsOn()) && model_.Sync()) ShowOtherRows();
    markStrip_->Refresh();
    viewport()->update();
    header_->viewport()->update();
}

/// Other rows than before are there.
void TableView::ShowOtherRows() {
    updateGeometries();
    // Of a shorter list what the user works with stays in view.
    if (model_.Filter().IsOn()) scrollTo(model_.index(std::max(CurrentRow(), 0), 0));
}

void TableView::ShowColumns() {
    isShowingColumns_ = true;
    for (std::int16_t position = 1; position <= Data().ColumnCount(); ++position) {
        for (const Column& column : Data().Columns()) {
            if (column.Position != position) continue;
            header_->setSectionHidden(column.Index.Section(), !column.IsShown());
            const int from = header_->visualIndex(column.Index.Section());
            if (from >= 0 && from != position - 1) header_->moveSection(from, position - 1);
            if (UnitsOf(header_->sectionSize(column.Index.Section())) != column.Width) {
                header_->resizeSection(column.Index.Section(), PixelsOf(column.Width));
            }
        }
    }
    isShowingColumns_ = false;
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
    const auto row = model_.RowAt(RowAt(point));
    presenter_.Main().lists.HitTest(row ? row->Index() - 1 : -1,
                                    row ? header_->logicalIndexAt(point.x()) : -1);
}

QRect TableView::visualRect(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    return QRect(header_->sectionViewportPosition(index.column()),
                 (index.row() - verticalScrollBar()->value()) * RowHeight(),
                 header_->sectionSize(index.column()), RowHeight());
}

/// A row as far as it has columns.
QRect TableView::LineOf(int row) const {
    return QRect(0, (row - verticalScrollBar()->value()) * RowHeight(),
                 std::min(viewport()->width(), header_->length() - horizontalOffset()), RowHeight());
}

bool TableView::IsOnTick(int row, const QPoint& point) const {
    return painter_.TickRect(LineOf(row)).adjusted(-3, -3, 3, 3).contains(point);
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
    setViewportMargins(0, height, MarkStrip::kWidth, 0);
    const QRect area = viewport()->geometry();
    header_->setGeometry(area.left(), area.top() - height, area.width() + MarkStrip::kWidth, height);
    markStrip_->setGeometry(area.right() + 1, area.top(), MarkStrip::kWidth, area.height());
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

/// Shows a row in the middle.
void TableView::CentreOn(int row) {
    verticalScrollBar()->setValue(row - viewport()->height() / RowHeight() / 2);
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
    for (int row = verticalScrollBar()->value(); row <= LastRowInView(); ++row) {
        if (const auto shown = model_.RowAt(row)) {
            Data().Need(*shown);
            painter_.Paint(painter, Data(), *shown, LineOf(row), StateOf(*shown, row));
        }
    }
}

RowState TableView::StateOf(const Row& row, int place) const {
    RowState state{place % 2 != 0, hasFocus() && place == CurrentRow()};
    if (&Data() != &presenter_.Main().lvwKinship) return state;
    // A band for each path.
    state.isAlternate = modKinship::IsOddPath(row.Text());
    const auto above = model_.RowAt(place - 1);
    state.beginsGroup = above && !modKinship::IsSamePath(row.Text(), above->Text());
    return state;
}

bool TableView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QAbstractItemView::viewportEvent(event);
    ShowTip(*static_cast<const QHelpEvent*>(event));
    return true;
}

/// A cell that is cut tells its whole text. What the list is for is told where no rows are covered by it.
void TableView::ShowTip(const QHelpEvent& event) {
    const auto row = model_.RowAt(RowAt(event.pos()));
    if (!row) {
        return QToolTip::showText(event.globalPos(), ToQt(Data().Tip), viewport(), {}, kTipMilliseconds);
    }
    const int place = RowAt(event.pos()), section = header_->logicalIndexAt(event.pos().x());
    const QString text = ToQt(row->Cell(ColumnId::OfSection(section)));
    const QRect cell = painter_.TextRect(LineOf(place), section);
    if (fontMetrics().horizontalAdvance(text) <= cell.width()) return QToolTip::hideText();
    QToolTip::showText(event.globalPos(), text, viewport(), cell);
}

void TableView::PaintHint(QPainter& painter) const {
    QColor faint = palette().color(QPalette::Text);
    faint.setAlphaF(0.65F);
    painter.setPen(faint);
    painter.drawText(viewport()->rect().adjusted(40, 20, -40, -20), Qt::AlignCenter | Qt::TextWordWrap,
                     hint_);
}

}  // namespace swiftroll::ui
