#include "row_teller.h"

#include <utility>

#include "list_keys.h"
#include "table_view_access.h"

namespace swiftroll::ui {

RowTeller::RowTeller(Presenter& presenter, TableView& view) : QObject(&view), view_(view) {
    view_.installEventFilter(this);
    presenter.OnRefresh([this] { Tell(false); });
}

bool RowTeller::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::FocusIn) Tell(true);
    if (event->type() == QEvent::ShortcutOverride) {
        const auto key = ListKeyOf(*static_cast<QKeyEvent*>(event));
        if (key && key->alt) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(object, event);
}

void RowTeller::Tell(bool isNew) {
    if (!view_.hasFocus() && !isNew) return;
    const auto row = TableViewAccess::CurrentRowOf(view_);
    if (!row) return;
    const auto shown = static_cast<TableModel*>(view_.model())->RowAt(*row);
    const bool wasChecked = std::exchange(isChecked_, shown->Checked());
    const bool wasSelected = std::exchange(isSelected_, shown->Selected());
    const int child = TableViewAccess::ChildOf(view_, *row);
    if (std::exchange(row_, *row) != *row || isNew) {
        QAccessibleEvent focus(&view_, QAccessible::Focus);
        focus.setChild(child);
        return QAccessible::updateAccessibility(&focus);
    }
    QAccessible::State changed;
    changed.checked = wasChecked != isChecked_;
    changed.selected = wasSelected != isSelected_;
    if (!changed.checked && !changed.selected) return;
    QAccessibleStateChangeEvent event(&view_, changed);
    event.setChild(child);
    QAccessible::updateAccessibility(&event);
}

}  // namespace swiftroll::ui
