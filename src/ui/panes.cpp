#include "panes.h"

#include <QAction>
#include <QApplication>

namespace swiftroll::ui {
namespace {

bool TakesFocus(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

bool Holds(const QWidget& pane, const QWidget& widget) {
    return &pane == &widget || pane.isAncestorOf(&widget);
}

}  // namespace

Panes::Panes(QWidget& window) : QObject(&window) {
    const std::pair<QKeySequence, int> keys[] = {{Qt::Key_F6, 1}, {Qt::SHIFT | Qt::Key_F6, -1}};
    for (const auto& [key, step] : keys) {
        auto* action = new QAction(&window);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, [this, step = step] { Go(step); });
        window.addAction(action);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { NoteFocus(now); });
}

void Panes::Add(QWidget& pane) { panes_.push_back({&pane, nullptr}); }

/// A pane within another one counts alone.
int Panes::PaneOf(const QWidget* focus) const {
    int found = -1;
    for (std::size_t i = 0; focus != nullptr && i < panes_.size(); ++i) {
        const QWidget* const pane = panes_[i].widget;
        if (pane == nullptr || !Holds(*pane, *focus)) continue;
        const bool isInner = found < 0 || Holds(*panes_[static_cast<std::size_t>(found)].widget, *pane);
        if (isInner) found = static_cast<int>(i);
    }
    return found;
}

void Panes::NoteFocus(QWidget* focus) {
    const int pane = PaneOf(focus);
    if (pane >= 0) panes_[static_cast<std::size_t>(pane)].lastFocus = focus;
}

void Panes::Go(int step) {
    const int count = static_cast<int>(panes_.size()), from = PaneOf(QApplication::focusWidget());
    for (int way = 1; way <= count; ++way) {
        const int start = from < 0 && step > 0 ? -1 : std::max(from, 0);
        const int pane = ((start + step * way) % count + count) % count;
        if (pane != from && Enter(panes_[static_cast<std::size_t>(pane)])) return;
    }
}

bool Panes::Enter(const Pane& pane) {
    if (pane.widget == nullptr || !pane.widget->isVisible()) return false;
    if (pane.lastFocus != nullptr && TakesFocus(*pane.lastFocus)) {
        pane.lastFocus->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    QWidget* widget = pane.widget;
    do {
        if (Holds(*pane.widget, *widget) && TakesFocus(*widget)) {
            widget->setFocus(Qt::TabFocusReason);
            return true;
        }
        widget = widget->nextInFocusChain();
    } while (widget != pane.widget);
    return false;
}

}  // namespace swiftroll::ui
