#pragma once

#include <cstdint>
#include <functional>
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
inline void Fire(const Event& event) {
    if (event) event();
}

/// What a control is called and says. An index tells the members of a control array apart.
struct ControlTexts {
    TextView name;
    TextView caption = {};
    TextView tip = {};
    int index = -1;
    bool visible = true;
};

/// The same for a control that is not shown.
constexpr ControlTexts Hidden(ControlTexts texts) {
    texts.visible = false;
    return texts;
}

/// A selector is a combo whose text can only be one of its items.
enum class ControlKind {
    CheckBox,
    OptionButton,
    OptionGroup,
    TextBox,
    ComboBox,
    Selector,
    OrderedList,
    Colour,
    Label,
    Command
};

/// Texts that stand for the value of a control, one at least, and where they come from.
struct ValueTexts {
    enum class Origin {
        Settings,  // as `ToTexts` gave them, perhaps in another version
        User       // one text, as on the command line: it is checked, and set as when the user goes on
    };
    Origin origin = Origin::Settings;
    std::vector<Text> texts;
    /// The button of a group that the first text belongs to.
    int button = 0;

    const Text& First() const { return texts.front(); }
    bool IsOfUser() const { return origin == Origin::User; }
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
    /// The value as the texts that the settings keep: one, one for each button of a group, or one for each
    /// row of a list; none for a control without a value.
    virtual std::vector<Text> ToTexts() const { return {}; }
    /// Sets the value.
    /// @throws Failure TypeMismatch when the texts are no value of this control, or it has none
    virtual void FromTexts(const ValueTexts& value);
    /// Sets the value from the text of a user. @throws Failure TypeMismatch
    void SetFromText(TextView text) { FromTexts({ValueTexts::Origin::User, {Text(text)}}); }

    Text Caption;
    Text Tip;
    bool Enabled = true;
    bool Visible;
    Event OnGotFocus;
    Event OnLostFocus;
    void TakeFocus() const;
    void LoseFocus() const;

  private:
    ControlKind kind_;
    Text name_;
};

}  // namespace swiftroll
