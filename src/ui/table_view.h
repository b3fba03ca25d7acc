#pragma once

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QHelpEvent>

#include "mark_strip.h"
#include "presenter.h"
#include "row_painter.h"
#include "table_model.h"

namespace swiftroll::ui {

/// Shows the rows of a table that its filter lets through: rows of one height with a tick, highlighted when
/// they are selected. Both marks stand in the table itself, so a million rows cost no memory here and any
/// number of them may be marked. Rows of the view are places on the screen, from 0; `RowFilter` tells which
/// rows of the table they are.
class TableView : public QAbstractItemView {
  public:
    TableView(Presenter& presenter, Table& table, QWidget* parent = nullptr);

    Table& Data() const { return model_.Data(); }
    QHeaderView& Header() const { return *header_; }
    /// What is told in place of the rows while there are none.
    void SetHint(const QString& hint) { hint_ = hint; }
    /// Height of a row in pixels.
    int RowHeight() const;
    /// The row at a point of the viewport, -1 for none and outside of the viewport.
    int RowAt(const QPoint& point) const;
    /// Tells the core which cell stands at a point of the viewport.
    void HitTest(const QPoint& point);

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex& index) const override;
    void setSelection(const QRect&, QItemSelectionModel::SelectionFlags) override {}
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex&, const QEvent*) const override {
        return QItemSelectionModel::NoUpdate;
    }
    QRegion visualRegionForSelection(const QItemSelection&) const override { return {}; }
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void BindHeader();
    void Refresh();
    void PlaceHeader();
    void BindColumns();
    void ShowColumns();
    void ShowOtherRows();
    void CentreOn(int row);
    void ShowHeaderMenu(const QPoint& point);
    void PaintHint(QPainter& painter) const;
    QRect LineOf(int row) const;
    RowState StateOf(const Row& row, int place) const;
    bool IsOnTick(int row, const QPoint& point) const;
    int LastRowInView() const;
    void ShowTip(const QHelpEvent& event);

    void SetCurrent(int row);
    int CurrentRow() const;
    void Select(int row, Qt::KeyboardModifiers modifiers);
    void SelectOnly(int first, int last);
    void ToggleTick(int row);
    void MoveTo(int row, Qt::KeyboardModifiers modifiers);
    bool OnListKey(const QKeyEvent& event);
    void HitTestOfKeyboard();
    bool TypeAhead(const QKeyEvent& event);
    void StartDrag();

    Presenter& presenter_;
    TableModel model_;
    QHeaderView* header_;
    RowPainter painter_;
    MarkStrip* markStrip_;
    QString hint_;
    QElapsedTimer sinceLetter_;
    QPoint pressedAt_;
    int pressedRow_ = -1;  // of a left press that may become a drag
    bool selectsOnRelease_ = false;
    int anchor_ = 0;
    QPersistentModelIndex awaited_;  // the row to scroll to once the view is shown
    bool isShowingColumns_ = false;
};

}  // namespace swiftroll::ui
