#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <unordered_map>
#include <vector>

#include "shell/frm_main.h"

namespace swiftroll::ui {

/// Stands between the widgets and the core: everything that a user does runs through `Act`, and afterwards,
/// and whenever a long operation lets events in, every widget is brought up to date with its control.
class Presenter : public QObject {
  public:
    explicit Presenter(frmMain& main) : main_(main) {}

    frmMain& Main() { return main_; }

    /// Runs an action of the user in the core and refreshes the screen. Nothing runs once the program is to
    /// end.
    void Act(const std::function<void()>& action);
    /// The same as soon as the present event is handled: for events in the middle of which no box may open.
    void ActLater(std::function<void()> action);
    /// Runs a command that the user chose: what was told of the last work goes.
    void Click(const Command& command);

    /// Whether an action runs: what the user does now, he does in the middle of it.
    bool IsWorking() const { return depth_ > 0; }

    /// Lets the window paint itself in the middle of work that takes no command: what the user does meanwhile
    /// waits.
    void Breathe();

    /// Calls `refresh` at every refresh of the screen; it must be cheap when nothing changed.
    void OnRefresh(std::function<void()> refresh) { refreshers_.push_back(std::move(refresh)); }
    void Refresh();
    /// Called once, when the program is to end and no action runs any more.
    std::function<void()> OnEnd;

    /// A widget that takes the focus gives it to its control, or makes its table the current one. A control
    /// may have several widgets, as a group of buttons has.
    void RegisterFocus(QWidget& widget, Window& window, Control& control);
    void RegisterFocus(QWidget& widget, Table& table);
    /// The widget of a control that was registered first, or nullptr.
    QWidget* WidgetOf(const Control& control) const;
    /// Follows the focus of the widgets into the core.
    void FocusMoved();

  private:
    struct Focus {
        Window* window = nullptr;
        Control* control = nullptr;
        Table* table = nullptr;
    };
    void SettleFocus();
    const Focus* FocusOf(QWidget* widget) const;

    frmMain& main_;
    std::vector<std::function<void()>> refreshers_;
    std::unordered_map<QWidget*, Focus> focus_;
    std::unordered_map<const Control*, QWidget*> widgets_;
    int depth_ = 0;
    bool focusIsDue_ = false;
    bool isRefreshing_ = false;
    bool isBreathing_ = false;
    bool hasEnded_ = false;
};

}  // namespace swiftroll::ui
