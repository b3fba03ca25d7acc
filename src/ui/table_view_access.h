#pragma once

#include <QAccessibleWidget>
#include <unordered_map>

#include "table_view.h"

namespace swiftroll::ui {

/// A list for assistive programs: a table with a row of headers. The first cell of a row stands for all of
/// it: its name is what all cells say, and it has the tick. Cells are made when they are asked for.
class TableViewAccess : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit TableViewAccess(TableView& view);
    ~TableViewAccess() override;

    /// For the toolkit: the interface of a view, nullptr for every other object.
    static QAccessibleInterface* Make(const QString& key, QObject* object);
    /// The number of the child that stands for a row, from 0.
    static int ChildOf(const TableView& view, int row);
    /// Where the current row stands on the screen, from 0; nothing when it does not.
    static std::optional<int> CurrentRowOf(TableView& view);

    TableView& View() const { return view_; }
    /// The row of the table at a place on the screen; nothing when it has gone since.
    std::optional<Row> ShownRow(int row) const { return static_cast<TableModel*>(view_.model())->RowAt(row); }
    /// The sections of the columns that are seen, in their order on the screen.
    std::vector<int> Sections() const;

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int columnCount() const override { return static_cast<int>(Sections().size()); }
    int rowCount() const override { return view_.model()->rowCount(); }
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return {}; }
    // The marks of a million rows are asked for row by row; these tell of the current one alone.
    int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    QList<QAccessibleInterface*> selectedCells() const override;
    int selectedColumnCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    QList<int> selectedRows() const override;
    bool isRowSelected(int row) const override;
    // The list has keys for this.
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { Forget(); }

  private:
    void Forget() const;

    TableView& view_;
    mutable std::unordered_map<int, QAccessible::Id> cells_;  // those that were asked for
};

}  // namespace swiftroll::ui
