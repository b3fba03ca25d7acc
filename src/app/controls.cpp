#include "app/controls.h"

#include <algorithm>

#include "text/failure.h"

namespace swiftroll {

void CheckBox::SetChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    Fire(OnClick);
}

void OptionButton::SetValue(bool value) {
    for (Control* control : window_.Controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        const bool isOfGroup = other != nullptr && other->arrayName_ == arrayName_ && other->group_ == group_;
        if (value && isOfGroup) other->value_ = false;
    }
    value_ = value;
}

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

void TextBox::SetText(TextView text) {
    if (text == text_) return;
    text_ = text;
    Fire(OnChange);
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

void OrderedList::Move(std::size_t from, std::size_t to) {
    if (from >= items_.size() || to >= items_.size()) throw Failure(FailureKind::IndexOutOfRange);
    const Item moved = items_[from];
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(from));
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(to), moved);
}

void Command::Click() const {
    if (Enabled) Fire(Operation);
}

}  // namespace swiftroll
