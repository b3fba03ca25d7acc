// What the user does with mouse and keys in the rows of a table.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QScrollBar>

#include "list_keys.h"
#include "person_edit.h"
#include "qt_text.h"
#include "table_view.h"

namespace swiftroll::ui {

int TableView::CurrentRow() const {
    const auto current = Data().Current();
    return current ? model_.Filter().PlaceOf(current->Index()) : -1;
}

void TableView::SetCurrent(int row) {
    if (const auto current = model_.RowAt(row)) Data().SetCurrent(*current);
}

/// Makes the rows from `first` to `last` the only selected ones.
void TableView::SelectOnly(int first, int last) {
    Data().VisitMarked([this](std::int32_t row) { Data().Item(row).SetSelected(false); });
    for (int row = first; row <= last; ++row) {
        if (auto shown = model_.RowAt(row)) shown->SetSelected(true);
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
        if (IsOnTick(row, point)) return ToggleTick(row);
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
    if (row >= 0 && IsOnTick(row, point)) return mousePressEvent(event);
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
            if (!TypeAhead(*event)) event->ignore();  // Escape and F1 belong to the window
    }
}

/// The cell that the menu of the keyboard is about: the one under the pointer, or where the pointer is not
/// over the list, one of the current row, in the column that was clicked last.
void TableView::HitTestOfKeyboard() {
    const QPoint point = viewport()->mapFromGlobal(QCursor::pos());
    if (viewport()->rect().contains(point)) return HitTest(point);
    const int row = CurrentRow(), clicked = presenter_.Main().lists.lHitCol.Section();
    const bool isColumn = clicked >= 0 && clicked < header_->count();
    const auto current = model_.RowAt(row);
    presenter_.Main().lists.HitTest(current ? current->Index() - 1 : -1, row < 0 ? -1
                                                                         : isColumn
                                                                             ? clicked
                                                                             : painter_.FirstSection());
    scrollTo(model_.index(row, 0));
}

/// Letters lead to the row that begins with them.
bool TableView::TypeAhead(const QKeyEvent& event) {
    const QString letters = event.text();
    const bool isCommand = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    if (isCommand || letters.isEmpty() || !letters.front().isPrint()) return false;
    const bool startsAnew =
        !sinceLetter_.isValid() || sinceLetter_.elapsed() > QApplication::keyboardInputInterval() * 2;
    sinceLetter_.start();
    int place = -1;
    presenter_.Act([&] {
        const auto row = presenter_.Main().typeAhead.Type(Data(), FromQt(letters), startsAnew);
        if (row) place = model_.Filter().PlaceOf(row->Index());
    });
    if (place >= 0) MoveTo(place, Qt::NoModifier);
    return true;
}

/// The keys of the list commands, which work on the cell that was clicked last, and of the context menu.
bool TableView::OnListKey(const QKeyEvent& event) {
    const std::optional<ListKey> key = ListKeyOf(event);
    if (!key) return false;
    presenter_.ActLater([this, key = *key] {
        if (key.OpensMenu()) {
            HitTestOfKeyboard();
            SetCurrent(model_.Filter().PlaceOf(presenter_.Main().lists.lHitRow + 1));
        }
        presenter_.Main().contextMenu.lvw_KeyDown(key);
    });
    return true;
}

void TableView::focusInEvent(QFocusEvent* event) {
    QAbstractItemView::focusInEvent(event);
    viewport()->update();
}

void TableView::showEvent(QShowEvent* event) {
    QAbstractItemView::showEvent(event);
    Refresh();
}

}  // namespace swiftroll::ui
