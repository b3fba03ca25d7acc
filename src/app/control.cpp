#include "app/control.h"

#include <algorithm>
#include <utility>

#include "text/edit.h"
#include "text/failure.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

Text FullName(const ControlTexts& texts) {
    return texts.index < 0 ? Text(texts.name) : Concat({texts.name, "(", Decimal(texts.index), ")"});
}

}  // namespace

Control* Window::Find(TextView name) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) { return c->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

Control::Control(Window& window, ControlKind kind, const ControlTexts& texts)
    : Caption(texts.caption), Tip(texts.tip), Visible(texts.visible), kind_(kind), name_(FullName(texts)) {
    window.controls_.push_back(this);
}

void Window::SetFocus(Control& control) {
    if (activeControl_ == &control) return;
    const Control* previous = std::exchange(activeControl_, nullptr);
    if (previous != nullptr) previous->LoseFocus();
    // What runs on losing the focus may have sent it elsewhere.
    if (activeControl_ != nullptr) return;
    activeControl_ = &control;
    control.TakeFocus();
    Fire(OnFocusChanged);
}

void Window::LeaveFocus() {
    const Control* previous = std::exchange(activeControl_, nullptr);
    if (previous != nullptr) previous->LoseFocus();
}

void Window::Show() {
    visible_ = true;
    Fire(OnShow);
}

void Window::Hide() {
    visible_ = false;
    Fire(OnHide);
}

void Control::TakeFocus() const { Fire(OnGotFocus); }

void Control::LoseFocus() const { Fire(OnLostFocus); }

void Control::FromTexts(const ValueTexts&) { throw Failure(FailureKind::TypeMismatch, name_); }

}  // namespace swiftroll
