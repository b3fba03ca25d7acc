// The values of controls as texts.
#include <algorithm>
#include <charconv>
#include <functional>
#include <iterator>
#include <optional>

#include "app/controls.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

/// A user writes "0" or "1"; the settings hold truth values in more than one form.
bool ReadTruth(const ValueTexts& value, TextView name) {
    const Text& text = value.First();
    if (!value.IsOfUser()) return ToBoolean(text);
    if (text != "0" && text != "1") throw Failure(FailureKind::TypeMismatch, name);
    return text == "1";
}

std::uint32_t ReadColour(TextView text, TextView name) {
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) text.remove_prefix(2);
    std::uint32_t colour = 0;
    const char* end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, colour, hexadecimal ? 16 : 10);
    if (parsed.ec != std::errc() || parsed.ptr != end || colour > 0xFFFFFFu) {
        throw Failure(FailureKind::TypeMismatch, name);
    }
    return colour;
}

bool IsBlank(const Text& text) { return Trim(text).empty(); }

// The settings know a row of a list by the number of the item, a blank and its text.
constexpr std::size_t kRowDigits = 3, kRowTextStart = 4;

using Rows = std::vector<OrderedList::Item>;

/// The row that a name of the settings stands for, or nothing when no item has its number.
std::optional<OrderedList::Item> RowNamed(const Rows& items, TextView name) {
    const auto number = ParseDecimal(name.substr(0, kRowDigits));
    const bool isKnown =
        std::any_of(items.begin(), items.end(), [&](const auto& item) { return item.value == number; });
    if (!isKnown) return std::nullopt;
    return OrderedList::Item{Text(name.substr(std::min(kRowTextStart, name.size()))),
                             static_cast<int>(*number)};
}

std::optional<OrderedList::Item> RowNumbered(const Rows& items, TextView text) {
    const auto number = ParseDecimal(text);
    const auto item =
        std::find_if(items.begin(), items.end(), [&](const auto& other) { return other.value == number; });
    return item == items.end() ? std::nullopt : std::optional(*item);
}

}  // namespace

std::vector<Text> CheckBox::ToTexts() const { return {checked_ ? "1" : "0"}; }

void CheckBox::FromTexts(const ValueTexts& value) { SetChecked(ReadTruth(value, Name())); }

std::vector<Text> OptionButton::ToTexts() const { return {Text(BooleanText(value_))}; }

void OptionButton::FromTexts(const ValueTexts& value) { SetValue(ReadTruth(value, Name())); }

std::vector<Text> OptionGroup::ToTexts() const {
    std::vector<Text> texts;
    for (int i = 0; i < static_cast<int>(captions_.size()); ++i) {
        texts.emplace_back(BooleanText(Index() == i));
    }
    return texts;
}

void OptionGroup::FromTexts(const ValueTexts& value) {
    if (!value.IsOfUser()) {
        int button = value.button;
        for (const Text& text : value.texts) SetMember(button++, ToBoolean(text));
        return;
    }
    const auto index = ParseDecimal(value.First());
    if (!index || *index < 0 || *index >= static_cast<std::int64_t>(captions_.size())) {
        throw Failure(FailureKind::TypeMismatch, Name());
    }
    SetIndex(static_cast<int>(*index));
}

std::vector<Text> TextBox::ToTexts() const { return {text_}; }

void TextBox::FromTexts(const ValueTexts& value) {
    if (!value.IsOfUser()) return SetText(value.First());
    if (Accepts && !Accepts(value.First())) throw Failure(FailureKind::TypeMismatch, Name());
    TakeFocus();
    SetText(value.First());
    LoseFocus();
}

std::vector<Text> ComboBox::ToTexts() const {
    std::vector<Text> texts = items_;
    if (KeepsPick && listIndex_ > 0) {
        const auto picked = texts.begin() + listIndex_;
        std::rotate(texts.begin(), picked, picked + 1);
    }
    std::erase_if(texts, IsBlank);
    return texts;
}

void ComboBox::FromTexts(const ValueTexts& value) {
    if (!value.IsOfUser()) return Restore(value.texts);
    if (IsSelector()) return PickFor(value.First());
    TakeFocus();
    SetText(value.First());
    LoseFocus();
}

void ComboBox::Restore(const std::vector<Text>& texts) {
    if (IsBlank(texts.front())) return;
    if (KeepsPick) {
        const auto picked = std::find(items_.begin(), items_.end(), texts.front());
        if (picked != items_.end()) SetListIndex(static_cast<int>(picked - items_.begin()));
        return;
    }
    if (!IsSelector()) {
        std::vector<Text> items = items_;
        std::copy_if(texts.begin(), texts.end(), std::back_inserter(items), std::not_fn(IsBlank));
        SetItems(std::move(items));
    }
    SetListIndex(0);
}

void ComboBox::PickFor(TextView text) {
    const auto number = ParseDecimal(text);
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i] == text || number == static_cast<std::int64_t>(i))
            return SetListIndex(static_cast<int>(i));
    }
    throw Failure(FailureKind::TypeMismatch, Name());
}

std::vector<Text> OrderedList::ToTexts() const {
    std::vector<Text> texts;
    for (const Item& item : items_)
        texts.push_back(Concat({Decimal(item.value, kRowDigits), " ", item.text}));
    return texts;
}

void OrderedList::FromTexts(const ValueTexts& value) {
    const auto names = value.IsOfUser() ? Split(value.First(), ",")
                                        : std::vector<TextView>(value.texts.begin(), value.texts.end());
    Rows rows;
    for (const TextView name : names) {
        auto row = value.IsOfUser() ? RowNumbered(items_, name) : RowNamed(items_, name);
        if (row) rows.push_back(*std::move(row));
    }
    const auto isThere = [&](const Item& item) {
        return std::any_of(rows.begin(), rows.end(), [&](const Item& row) { return row.text == item.text; });
    };
    const bool isComplete = names.size() == items_.size() && rows.size() == items_.size() &&
                            std::all_of(items_.begin(), items_.end(), isThere);
    if (!isComplete) throw Failure(FailureKind::TypeMismatch, Name());
    items_ = std::move(rows);
}

std::vector<Text> ColourButton::ToTexts() const { return {Decimal(colour_)}; }

void ColourButton::FromTexts(const ValueTexts& value) {
    SetColour(value.IsOfUser() ? ReadColour(value.First(), Name())
                               : static_cast<std::uint32_t>(ToLong(value.First())));
}

std::vector<Text> Label::ToTexts() const { return {Caption}; }

void Label::FromTexts(const ValueTexts& value) {
    if (value.IsOfUser()) return Control::FromTexts(value);
    Caption = value.First();
}

}  // namespace swiftroll
