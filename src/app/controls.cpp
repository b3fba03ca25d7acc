#include "app/controls.h"

#include <algorithm>
#include <charconv>

#include "text/edit.h"
#include "text/failure.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

void Fire(const Event& event) {
    if (event) event();
}

Text FullName(const ControlTexts& texts) {
    return texts.index < 0 ? Text(texts.name) : Concat({texts.name, "(", Decimal(texts.index), ")"});
}

bool ZeroOrOne(TextView text, TextView name) {
    if (text != "0" && text != "1") throw Failure(FailureKind::TypeMismatch, name);
    return text == "1";
}

}  // namespace

Control* Window::Find(TextView name) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) { return c->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

Control::Control(Window& window, ControlKind kind, const ControlTexts& texts)
    : Caption(texts.caption), Tip(texts.tip), kind_(kind), name_(FullName(texts)) {
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

void Control::SetFromText(TextView) { throw Failure(FailureKind::TypeMismatch, name_); }

void CheckBox::SetChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    Fire(OnClick);
}

void CheckBox::SetFromText(TextView text) { SetChecked(ZeroOrOne(text, Name())); }

void OptionButton::SetValue(bool value) {
    for (Control* control : window_.Controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        const bool isOfGroup = other != nullptr && other->arrayName_ == arrayName_ && other->group_ == group_;
        if (value && isOfGroup) other->value_ = false;
    }
    value_ = value;
}

void OptionButton::SetFromText(TextView text) { SetValue(ZeroOrOne(text, Name())); }

void OptionGroup::SetIndex(int index) {
    if (index < 0 || index >= static_cast<int>(captions_.size())) throw Failure(FailureKind::IndexOutOfRange);
    index_ = index;
    Fire(OnClick);
}

void OptionGroup::SetMember(int index, bool value) {
    if (index < 0 || index >= static_cast<int>(captions_.size())) throw Failure(FailureKind::IndexOutOfRange);
    if (value) index_ = index;
    if (!value && index_ == index) index_ = -1;
    Fire(OnClick);
}

void OptionGroup::SetFromText(TextView text) {
    const auto index = ParseDecimal(text);
    if (!index || *index < 0 || *index >= static_cast<std::int64_t>(captions_.size())) {
        throw Failure(FailureKind::TypeMismatch, Name());
    }
    SetIndex(static_cast<int>(*index));
}

void TextBox::SetText(TextView text) {
    if (text == text_) return;
    text_ = text;
    Fire(OnChange);
}

void TextBox::SetFromText(TextView text) {
    if (Accepts && !Accepts(text)) throw Failure(FailureKind::TypeMismatch, Name());
    TakeFocus();
    SetText(text);
    LoseFocus();
}

Text ComboBox::Get() const { return listIndex_ >= 0 ? items_[static_cast<std::size_t>(listIndex_)] : text_; }

void ComboBox::SetText(TextView text) {
    text_ = text;
    listIndex_ = -1;
}

void ComboBox::SetItems(std::vector<Text> items) {
    text_ = Get();
    items_ = std::move(items);
    listIndex_ = -1;
}

void ComboBox::SetItem(int index, TextView text) {
    if (index < 0 || index >= static_cast<int>(items_.size())) throw Failure(FailureKind::IndexOutOfRange);
    items_[static_cast<std::size_t>(index)] = text;
}

void ComboBox::SetListIndex(int index) {
    if (index < 0 || index >= static_cast<int>(items_.size())) throw Failure(FailureKind::IndexOutOfRange);
    listIndex_ = index;
    Fire(OnClick);
}

void ComboBox::SetFromText(TextView text) {
    if (!isSelector_) {
        TakeFocus();
        SetText(text);
        LoseFocus();
        return;
    }
    const auto number = ParseDecimal(text);
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i] == text || number == static_cast<std::int64_t>(i))
            return SetListIndex(static_cast<int>(i));
    }
    throw Failure(FailureKind::TypeMismatch, Name());
}

void OrderedList::Move(std::size_t from, std::size_t to) {
    if (from >= items_.size() || to >= items_.size()) throw Failure(FailureKind::IndexOutOfRange);
    const Item moved = items_[from];
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(from));
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(to), moved);
}

void OrderedList::SetFromText(TextView text) {
    std::vector<Item> ordered;
    for (const TextView part : Split(text, ",")) {
        const auto value = ParseDecimal(part);
        const auto isMeant = [&](const Item& item) { return item.value == value; };
        const auto item = std::find_if(items_.begin(), items_.end(), isMeant);
        const bool repeated = std::any_of(ordered.begin(), ordered.end(), isMeant);
        if (item == items_.end() || repeated) throw Failure(FailureKind::TypeMismatch, Name());
        ordered.push_back(*item);
    }
    if (ordered.size() != items_.size()) throw Failure(FailureKind::TypeMismatch, Name());
    items_ = std::move(ordered);
}

void ColourButton::SetFromText(TextView text) {
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) text.remove_prefix(2);
    std::uint32_t colour = 0;
    const char* end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, colour, hexadecimal ? 16 : 10);
    if (parsed.ec != std::errc() || parsed.ptr != end || colour > 0xFFFFFFu) {
        throw Failure(FailureKind::TypeMismatch, Name());
    }
    SetColour(colour);
}

void Command::Click() const {
    if (Enabled) Fire(Operation);
}

}  // namespace swiftroll
