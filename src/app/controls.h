#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include "app/control.h"

namespace swiftroll {

/// Holds 0 or 1.
class CheckBox : public Control {
  public:
    CheckBox(Window& window, const ControlTexts& texts, bool checked)
        : Control(window, ControlKind::CheckBox, texts), checked_(checked) {}
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    // "0" or "1".
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;
    Event OnClick;

  private:
    bool checked_;
};

/// One of several option buttons of a control array, which stand and are enabled each by itself; one of them
/// is set at most, or one of each group where an array has several.
class OptionButton : public Control {
  public:
    OptionButton(Window& window, const ControlTexts& texts, int group = 0)
        : Control(window, ControlKind::OptionButton, texts),
          window_(window),
          arrayName_(texts.name),
          group_(group) {}
    bool Value() const { return value_; }
    /// Setting it clears the others of the group.
    void SetValue(bool value);
    // For the settings "True" or "False"; a user writes "0" or "1".
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;
    Event OnDblClick;

  private:
    Window& window_;
    Text arrayName_;
    int group_;
    bool value_ = false;
};

/// Option buttons of which one is set: `GetOptionIndex`, `SetOptionIndex`.
class OptionGroup : public Control {
  public:
    OptionGroup(Window& window, const ControlTexts& texts, std::vector<Text> captions, int index)
        : Control(window, ControlKind::OptionGroup, texts), captions_(std::move(captions)), index_(index) {}
    /// `tips` has one for each caption, or is empty.
    OptionGroup(Window& window, const ControlTexts& texts, std::initializer_list<TextView> captions,
                int index, std::initializer_list<TextView> tips = {})
        : OptionGroup(window, texts, std::vector<Text>(captions.begin(), captions.end()), index) {
        tips_.assign(tips.begin(), tips.end());
    }
    /// The first one, when none is set.
    int Index() const { return index_ < 0 ? 0 : index_; }
    /// @throws Failure IndexOutOfRange
    void SetIndex(int index);
    /// Sets or clears one button by itself; none is set after the one that was is cleared.
    /// @throws Failure IndexOutOfRange
    void SetMember(int index, bool value);
    const std::vector<Text>& Captions() const { return captions_; }
    const std::vector<Text>& Tips() const { return tips_; }
    // For the settings "True" or "False" for each button; a user writes the number of one.
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;
    Event OnClick;

  private:
    std::vector<Text> captions_;
    std::vector<Text> tips_;
    int index_;  // -1 for none
};

class TextBox : public Control {
  public:
    TextBox(Window& window, const ControlTexts& texts, TextView value)
        : Control(window, ControlKind::TextBox, texts), text_(value) {}
    const Text& Get() const { return text_; }
    void SetText(TextView text);
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;
    /// Whether a text of the command line is a value, where not every text is one. A user's text is mended
    /// instead when the focus leaves.
    std::function<bool(TextView text)> Accepts;
    Event OnChange;

  private:
    Text text_;
};

/// A text with a list of items; a selector's text is always one of its items.
class ComboBox : public Control {
  public:
    ComboBox(Window& window, const ControlTexts& texts, std::vector<Text> items = {})
        : Control(window, items.empty() ? ControlKind::ComboBox : ControlKind::Selector, texts),
          items_(std::move(items)) {}
    ComboBox(Window& window, const ControlTexts& texts, std::initializer_list<TextView> items)
        : ComboBox(window, texts, std::vector<Text>(items.begin(), items.end())) {}
    /// With a text that is not among the items.
    ComboBox(Window& window, const ControlTexts& texts, TextView text) : ComboBox(window, texts) {
        text_ = text;
    }
    /// Whether the text can only be one of the items.
    bool IsSelector() const { return Kind() == ControlKind::Selector; }
    Text Get() const;
    /// Writes the text; no item is the picked one then.
    void SetText(TextView text);
    const std::vector<Text>& Items() const { return items_; }
    void SetItems(std::vector<Text> items);
    /// Writes an item anew; the picked one stays the same. @throws Failure IndexOutOfRange
    void SetItem(int index, TextView text);
    /// 0-based place of the picked item, -1 for none.
    int ListIndex() const { return listIndex_; }
    /// Picks an item. @throws Failure IndexOutOfRange
    void SetListIndex(int index);
    // For the settings all items that are not blank, of which the first one is picked; those of a selector
    // are the program's, and stay. A user types a text, or picks the item of a selector by its number or
    // text.
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;
    Event OnClick;
    /// Whether the settings keep which item of a selector is picked: they hold the items alone, that one
    /// first.
    bool KeepsPick = false;

  private:
    void Restore(const std::vector<Text>& texts);
    void PickFor(TextView text);

    std::vector<Text> items_;
    Text text_;
    int listIndex_ = IsSelector() ? 0 : -1;
};

/// Rows with a number each, which the user puts in order.
class OrderedList : public Control {
  public:
    struct Item {
        Text text;
        int value;
    };
    OrderedList(Window& window, const ControlTexts& texts, std::vector<Item> items)
        : Control(window, ControlKind::OrderedList, texts), items_(std::move(items)) {}
    const std::vector<Item>& Items() const { return items_; }
    /// Takes the row at 0-based place `from` out and puts it in at the place of row `to`.
    /// @throws Failure IndexOutOfRange
    void Move(std::size_t from, std::size_t to);
    // For the settings the number and the text of each row, as in "002 Décès"; a user writes the numbers of
    // all rows, as in "2,1,3".
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;

  private:
    std::vector<Item> items_;
};

/// A button that holds a colour, 0x00BBGGRR.
class ColourButton : public Control {
  public:
    ColourButton(Window& window, const ControlTexts& texts, std::uint32_t colour)
        : Control(window, ControlKind::Colour, texts), colour_(colour) {}
    std::uint32_t Colour() const { return colour_; }
    /// The user presses it to choose another colour.
    Event OnClick;
    void SetColour(std::uint32_t colour) { colour_ = colour & 0xFFFFFFu; }
    // Decimal; a user may write it hexadecimal behind "0x".
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;

  private:
    std::uint32_t colour_;
};

class Label : public Control {
  public:
    Label(Window& window, const ControlTexts& texts) : Control(window, ControlKind::Label, texts) {}
    // The caption; a user cannot set it.
    std::vector<Text> ToTexts() const override;
    void FromTexts(const ValueTexts& value) override;
    Event OnDblClick;
};

/// A button or a menu entry.
class Command : public Control {
  public:
    /// `key` is the shortcut, as in "Ctrl+O".
    Command(Window& window, const ControlTexts& texts, TextView key = {}, bool enabled = true)
        : Control(window, ControlKind::Command, texts), Key(key) {
        Enabled = enabled;
    }
    /// Runs the operation, unless the command is disabled.
    void Click() const;
    Text Key;
    Event Operation;
};

/// A command of a menu, with the entries that it opens where it stands for a submenu. A command whose caption
/// is framed by dashes is the title of the entries below it.
struct Menu {
    Command& head;
    std::vector<Menu> entries = {};
};

/// A control array: members that are called alike but for their index.
template <class Member, std::size_t n>
std::array<Member, n> ArrayOf(Window& window, ControlTexts texts) {
    const auto member = [&](std::size_t index) {
        texts.index = static_cast<int>(index);
        return Member(window, texts);
    };
    return [&]<std::size_t... i>(std::index_sequence<i...>) { return std::array<Member, n>{member(i)...}; }
    (std::make_index_sequence<n>());
}

}  // namespace swiftroll
