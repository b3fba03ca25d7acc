#include "table_view_access.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStringList>

#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// Whoever reads a whole table must not make a million of them.
constexpr std::size_t kMostCells = 4096;

std::vector<int> SectionsOf(const QHeaderView& header) {
    std::vector<int> sections;
    for (int visual = 0; visual < header.count(); ++visual) {
        const int section = header.logicalIndex(visual);
        if (header.sectionSize(section) > 0) sections.push_back(section);
    }
    return sections;
}

/// A header, or a cell of a row. The table may change at any time; what is asked of a cell that has gone is
/// empty.
class CellAccess : public QAccessibleInterface,
                   public QAccessibleTableCellInterface,
                   public QAccessibleActionInterface {
  public:
    /// `row` is -1 for a header.
    CellAccess(const TableViewAccess& table, int row, int column)
        : table_(table), view_(table.View()), row_(row), column_(column) {}

    int Row() const { return row_; }
    int Column() const { return column_; }
    bool isValid() const override { return row_ < table_.rowCount() && column_ < table_.columnCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&view_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override {
        return IsHeader() ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    void setText(QAccessible::Text, const QString&) override {}
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override { return row_ >= 0 && table_.isRowSelected(row_); }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {table_.child(column_)}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return column_; }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override {
        return StandsForRow() ? QStringList{toggleAction()} : QStringList();
    }
    void doAction(const QString& action) override {
        if (action == toggleAction() && StandsForRow()) Toggle();
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    bool IsHeader() const { return row_ < 0; }
    bool StandsForRow() const { return !IsHeader() && column_ == 0; }
    QString CellText(int section) const {
        return view_.model()->index(row_, section).data(Qt::DisplayRole).toString();
    }
    QString RowText() const;
    void Toggle();

    const TableViewAccess& table_;
    TableView& view_;
    int row_, column_;
};

QString CellAccess::RowText() const {
    QStringList texts;
    for (const int section : table_.Sections()) {
        const QString text = CellText(section);
        if (!text.isEmpty()) texts << text;
    }
    return texts.join(QStringLiteral(", "));
}

/// As the user would: by the space bar, on the row.
void CellAccess::Toggle() {
    const auto row = table_.ShownRow(row_);
    if (!row) return;
    view_.Data().SetCurrent(*row);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QApplication::sendEvent(&view_, &space);
}

QString CellAccess::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name || !isValid()) return {};
    if (IsHeader()) return table_.columnDescription(column_);
    return StandsForRow() ? RowText() : CellText(table_.Sections().at(static_cast<std::size_t>(column_)));
}

QRect CellAccess::rect() const {
    if (!isValid()) return {};
    const int section = table_.Sections().at(static_cast<std::size_t>(column_));
    if (IsHeader()) {
        const QHeaderView& header = view_.Header();
        return {header.mapToGlobal(QPoint(header.sectionViewportPosition(section), 0)),
                QSize(header.sectionSize(section), header.height())};
    }
    const QRect place = view_.visualRect(view_.model()->index(row_, section));
    return {view_.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State CellAccess::state() const {
    QAccessible::State state;
    const auto row = IsHeader() ? std::nullopt : table_.ShownRow(row_);
    state.invalid = !isValid();
    if (!row) return state;
    state.selectable = true;
    state.selected = row->Selected();
    state.offscreen = !view_.viewport()->rect().intersects(
        view_.visualRect(view_.model()->index(row_, view_.Header().logicalIndex(0))));
    if (!StandsForRow()) return state;
    state.focusable = state.checkable = true;
    state.checked = row->Checked();
    state.active = TableViewAccess::CurrentRowOf(view_) == row_;
    state.focused = state.active && view_.hasFocus();
    return state;
}

void* CellAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

}  // namespace

TableViewAccess::TableViewAccess(TableView& view)
    : QAccessibleWidget(&view, QAccessible::Table), view_(view) {}

TableViewAccess::~TableViewAccess() { Forget(); }

QAccessibleInterface* TableViewAccess::Make(const QString&, QObject* object) {
    auto* view = dynamic_cast<TableView*>(object);
    return view == nullptr ? nullptr : new TableViewAccess(*view);
}

int TableViewAccess::ChildOf(const TableView& view, int row) {
    return (row + 1) * static_cast<int>(SectionsOf(view.Header()).size());
}

/// The rows on the screen stand in the order of the table.
std::optional<int> TableViewAccess::CurrentRowOf(TableView& view) {
    const auto current = view.Data().Current();
    const auto* model = static_cast<TableModel*>(view.model());
    int first = 0, behind = current ? model->rowCount() : 0;
    while (first < behind) {
        const int middle = first + (behind - first) / 2;
        const auto row = model->RowAt(middle);
        if (!row) return std::nullopt;
        if (*row == *current) return middle;
        if (row->Index() < current->Index()) {
            first = middle + 1;
        } else {
            behind = middle;
        }
    }
    return std::nullopt;
}

void TableViewAccess::Forget() const {
    for (const auto& [index, id] : cells_) QAccessible::deleteAccessibleInterface(id);
    cells_.clear();
}

std::vector<int> TableViewAccess::Sections() const { return SectionsOf(view_.Header()); }

void* TableViewAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

int TableViewAccess::childCount() const { return (rowCount() + 1) * columnCount(); }

QAccessibleInterface* TableViewAccess::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    const auto known = cells_.find(index);
    if (known != cells_.end()) return QAccessible::accessibleInterface(known->second);
    if (cells_.size() >= kMostCells) Forget();
    const int columns = columnCount();
    auto* cell = new CellAccess(*this, index / columns - 1, index % columns);
    cells_[index] = QAccessible::registerAccessibleInterface(cell);
    return cell;
}

int TableViewAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const CellAccess*>(child);
    return cell == nullptr ? -1 : (cell->Row() + 1) * columnCount() + cell->Column();
}

QAccessibleInterface* TableViewAccess::cellAt(int row, int column) const {
    return row < 0 || column < 0 || column >= columnCount() ? nullptr
                                                            : child((row + 1) * columnCount() + column);
}

QAccessibleInterface* TableViewAccess::childAt(int x, int y) const {
    const QPoint point = view_.viewport()->mapFromGlobal(QPoint(x, y));
    const int section = view_.Header().logicalIndexAt(point.x());
    const std::vector<int> sections = Sections();
    const auto found = std::find(sections.begin(), sections.end(), section);
    if (found == sections.end()) return nullptr;
    const int column = static_cast<int>(found - sections.begin());
    return point.y() < 0 ? child(column) : cellAt(view_.RowAt(point), column);
}

QAccessibleInterface* TableViewAccess::focusChild() const {
    return cellAt(CurrentRowOf(view_).value_or(-1), 0);
}

QString TableViewAccess::columnDescription(int column) const {
    const std::vector<int> sections = Sections();
    if (column < 0 || column >= static_cast<int>(sections.size())) return {};
    return view_.model()
        ->headerData(sections[static_cast<std::size_t>(column)], Qt::Horizontal, Qt::DisplayRole)
        .toString();
}

bool TableViewAccess::isRowSelected(int row) const {
    const auto shown = ShownRow(row);
    return shown && shown->Selected();
}

QList<int> TableViewAccess::selectedRows() const {
    const auto current = CurrentRowOf(view_);
    return current && isRowSelected(*current) ? QList<int>{*current} : QList<int>();
}

QList<QAccessibleInterface*> TableViewAccess::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows()) {
        for (int column = 0; column < columnCount(); ++column) cells << cellAt(row, column);
    }
    return cells;
}

}  // namespace swiftroll::ui
