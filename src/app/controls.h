#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "text/text.h"

namespace swiftroll {

class Control;

/// Where a window stands on the screen, in pixels. The presentation fills it before the settings are restored
/// and before they are saved, and reads it after the restore.
struct WindowPlace {
    int top = 0, left = 0;
    int width = 0, height = 0;
    /// Whether the user can change the size.
    bool resizable = true;
    /// Whether there is a place: a window that was never on a screen has none, unless one was restored.
    bool known = false;
    /// Place and size are then those that the window takes when it is maximised no more.
    bool maximised = false;
};

/// A window without a screen: the ordered list of its controls. Presentations, settings and the headless
/// program walk it; the controls themselves are members of the class that derives from it.
class Window {
  public:
    /// `name` stands for the window in the settings.
    explicit Window(TextView name = {}) : name_(name) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    const Text& Name() const { return name_; }
    const std::vector<Control*>& Controls() const { return controls_; }
    /// The control of a name as users write it, "txtPlaceFormat" or "txtOutExtension(0)"; nullptr if none.
    Control* Find(TextView name) const;

    /// The control that has the focus, or nullptr.
    Control* ActiveControl() const { return activeControl_; }
    /// Gives a control the focus: the one that had it loses it first.
    void SetFocus(Control& control);
    /// Takes the focus from the control that has it, as when a table gets it.
    void LeaveFocus();
    /// For the presentation, which moves its own focus after.
    std::function<void()> OnFocusChanged;

    WindowPlace Place;
    Text Caption;
    bool Visible() const { return visible_; }
    void Show();
    /// For the presentation, which brings the window to the screen at once.
    std::function<void()> OnShow;
    /// Ends the dialog that shows the window.
    void Hide();
    /// For the presentation, which takes the window from the screen.
    std::function<void()> OnHide;

  private:
    friend class Control;
    Text name_;
    std::vector<Control*> controls_;
    Control* activeControl_ = nullptr;
    bool visible_ = false;
};

using Event = std::function<void()>;

/// What a control is called and says. An index tells the members of a control array apart.
struct ControlTexts {
    TextView name;
    TextView caption = {};
    TextView tip = {};
    int index = -1;
};

enum class ControlKind {
    CheckBox,
    OptionButton,
    OptionGroup,
    TextBox,
    ComboBox,
    OrderedList,
    Colour,
    Label,
    Command
};

/// A control of the option record or a command. Setting a value fires the events that belong to it.
class Control {
  public:
    Control(Window& window, ControlKind kind, const ControlTexts& texts);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    ControlKind Kind() const { return kind_; }
    /// The name with the index in parentheses where there is one.
    const Text& Name() const { return name_; }
    /// Sets the value from a text as the settings and the command line write it.
    /// @throws Failure TypeMismatch when the text is no value of this control, or it has none
    virtual void SetFromText(TextView text);

    Text Caption;
    Text Tip;
    bool Enabled = true;
    bool Visible = true;
    Event OnGotFocus;
    Event OnLostFocus;
    void TakeFocus() const;
    void LoseFocus() const;

  private:
    ControlKind kind_;
    Text name_;
};

/// Holds 0 or 1.
class CheckBox : public Control {
  public:
    CheckBox(Window& window, const ControlTexts& texts, bool checked)
        : Control(window, ControlKind::CheckBox, texts), checked_(checked) {}
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    void SetFromText(TextView text) override;
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
    void SetFromText(TextView text) override;
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
    /// `tips` has one for each caption, or is empty.
    OptionGroup(Window& window, const ControlTexts& texts, std::vector<Text> captions, int index,
                std::vector<Text> tips = {})
        : Control(window, ControlKind::OptionGroup, texts),
          captions_(std::move(captions)),
          tips_(std::move(tips)),
          index_(index) {}
    /// The first one, when none is set.
    int Index() const { return index_ < 0 ? 0 : index_; }
    /// @throws Failure IndexOutOfRange
    void SetIndex(int index);
    /// Sets or clears one button by itself; none is set after the one that was is cleared.
    /// @throws Failure IndexOutOfRange
    void SetMember(int index, bool value);
    const std::vector<Text>& Captions() const { return captions_; }
    const std::vector<Text>& Tips() const { return tips_; }
    void SetFromText(TextView text) override;
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
    /// As a user who types the text and goes on to another control.
    void SetFromText(TextView text) override;
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
        : Control(window, ControlKind::ComboBox, texts),
          isSelector_(!items.empty()),
          items_(std::move(items)) {}
    /// Whether the text can only be one of the items.
    bool IsSelector() const { return isSelector_; }
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
    /// As a user who types the text, or picks the item of a selector by its number or text, and goes on.
    void SetFromText(TextView text) override;
    Event OnClick;
    /// Whether the settings keep which item of a selector is picked: they hold the items alone, that one
    /// first.
    bool KeepsPick = false;

  private:
    bool isSelector_;
    std::vector<Text> items_;
    Text text_;
    int listIndex_ = isSelector_ ? 0 : -1;
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
    void SetItems(std::vector<Item> items) { items_ = std::move(items); }
    /// Puts the rows in the order of their numbers, as in "2,1,3".
    void SetFromText(TextView text) override;

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
    /// Decimal, or hexadecimal behind "0x".
    void SetFromText(TextView text) override;

  private:
    std::uint32_t colour_;
};

class Label : public Control {
  public:
    Label(Window& window, const ControlTexts& texts) : Control(window, ControlKind::Label, texts) {}
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

}  // namespace swiftroll
