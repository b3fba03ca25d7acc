#include "presenter.h"

#include <QApplication>
#include <QTimer>

namespace swiftroll::ui {
namespace {

/// How long an action waits that comes in the middle of work without commands.
constexpr int kBreathMilliseconds = 20;

}  // namespace

void Presenter::Act(const std::function<void()>& action) {
    if (main_.bEnded) return;
    if (isBreathing_) return ActLater(action);
    ++depth_;
    try {
        SettleFocus();
        action();
        Refresh();
    } catch (const ProgramEnd&) {
        main_.bEnded = true;
    }
    --depth_;
    if (main_.bEnded && depth_ == 0 && !hasEnded_) {
        hasEnded_ = true;
        if (OnEnd) OnEnd();
    }
}

void Presenter::ActLater(std::function<void()> action) {
    const int delay = isBreathing_ ? kBreathMilliseconds : 0;
    QTimer::singleShot(delay, this, [this, action = std::move(action)] { Act(action); });
}

void Presenter::Click(const Command& command) {
    Act([&] {
        main_.messageBar.ForgetTold();
        command.Click();
    });
}

void Presenter::Breathe() {
    if (isBreathing_ || depth_ == 0) return;
    isBreathing_ = true;
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    isBreathing_ = false;
}

void Presenter::Refresh() {
    if (isRefreshing_ || main_.bEnded) return;
    isRefreshing_ = true;
    for (const auto& refresh : refreshers_) refresh();
    isRefreshing_ = false;
}

void Presenter::RegisterFocus(QWidget& widget, Window& window, Control& control) {
    focus_[&widget] = Focus{&window, &control, nullptr};
    widgets_.try_emplace(&control, &widget);
    if (!window.OnFocusChanged) {
        window.OnFocusChanged = [this, watched = &window] {
            const Control* active = watched->ActiveControl();
            if (active == nullptr) return;
            // Of the buttons of a group the user may have pressed any.
            const Focus* present = FocusOf(QApplication::focusWidget());
            if (present != nullptr && present->control == active) return;
            QWidget* target = WidgetOf(*active);
            if (target == nullptr) return;
            // What the core has just brought to sight is shown only now.
            if (!target->isVisible()) Refresh();
            if (target->isVisible()) target->setFocus();
        };
    }
}

void Presenter::RegisterFocus(QWidget& widget, Table& table) {
    focus_[&widget] = Focus{nullptr, nullptr, &table};
}

QWidget* Presenter::WidgetOf(const Control& control) const {
    const auto found = widgets_.find(&control);
    return found == widgets_.end() ? nullptr : found->second;
}

void Presenter::FocusMoved() {
    focusIsDue_ = true;
    QTimer::singleShot(0, this, [this] {
        if (focusIsDue_) Act([] {});
    });
}

const Presenter::Focus* Presenter::FocusOf(QWidget* widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const auto found = focus_.find(widget);
        if (found != focus_.end()) return &found->second;
    }
    return nullptr;
}

/// The handlers of losing and taking the focus may open boxes, so they run here and not in the focus event.
void Presenter::SettleFocus() {
    if (!focusIsDue_) return;
    focusIsDue_ = false;
    const Focus* focus = FocusOf(QApplication::focusWidget());
    if (focus == nullptr) return;
    const bool isCurrent = focus->table == main_.lvwActiveListView && main_.ActiveControl() == nullptr;
    if (focus->table != nullptr && isCurrent) return;
    if (focus->table != nullptr) {
        main_.tabs.TableGotFocus(*focus->table);
    } else if (focus->window->ActiveControl() != focus->control) {
        focus->window->SetFocus(*focus->control);
    }
}

}  // namespace swiftroll::ui
