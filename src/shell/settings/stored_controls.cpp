#include "shell/settings/stored_controls.h"

#include <iterator>

#include "shell/settings/settings_sections.h"
#include "shell/settings/sorted_settings.h"
#include "text/failure.h"
#include "text/ignoring_failures.h"

namespace swiftroll::modCommon {
namespace {

struct KindForm {
    ControlKind kind;
    StoredAs form = StoredAs::Nothing;
    TextView key = {};
};
constexpr KindForm kForms[] = {
    {ControlKind::CheckBox, StoredAs::Value, kCheckOrOptionKey},
    {ControlKind::OptionButton, StoredAs::Value, kCheckOrOptionKey},
    {ControlKind::OptionGroup, StoredAs::Buttons, kCheckOrOptionKey},
    {ControlKind::TextBox, StoredAs::Value, kTextKey},
    {ControlKind::ComboBox, StoredAs::History},
    {ControlKind::Selector, StoredAs::Selector},
    {ControlKind::OrderedList, StoredAs::Order},
    {ControlKind::Colour},
    {ControlKind::Label},
    {ControlKind::Command},
};
static_assert([] {
    for (std::size_t i = 0; i < std::size(kForms); ++i) {
        if (kForms[i].kind != static_cast<ControlKind>(i)) return false;
    }
    return std::size(kForms) == static_cast<std::size_t>(ControlKind::Command) + 1;
}());

const KindForm& FormOfKind(const Control& control) {
    return kForms[static_cast<std::size_t>(control.Kind())];
}

/// The text at place `i` of the value of a control.
SettingEntry EntryOf(const KindForm& form, TextView section, int i, const Text& text) {
    switch (form.form) {
        case StoredAs::Buttons:
            return {MemberSection(section, i), Text(form.key), text};
        case StoredAs::Order:
            return {Text(section), text, Decimal(i + 1)};
        case StoredAs::History:
        case StoredAs::Selector:
            return {Text(section), Decimal(i, kItemDigits), text};
        case StoredAs::Value:
        case StoredAs::Nothing:
            return {Text(section), Text(form.key), text};
    }
    return {};
}

/// Reads a text of a control, whatever its key.
void RestoreText(Application& app, Control& control, TextView section, int button = 0) {
    const auto pairs = app.ports.settings.GetAllSettings(section);
    if (pairs.empty()) return;
    const auto& [key, text] = pairs.front();
    ReadValue(app, section, key,
              [&, &text = text] { control.FromTexts({.texts = {text}, .button = button}); });
}

void RestoreItems(Application& app, Control& control, TextView section) {
    const auto pairs = app.ports.settings.GetAllSettings(section);
    if (!pairs.empty()) control.FromTexts({.texts = SortMySettings0(app, pairs)});
}

}  // namespace

StoredAs FormOf(const Control& control) { return FormOfKind(control).form; }

std::vector<SettingEntry> EntriesOf(const Control& control, TextView section) {
    const KindForm& form = FormOfKind(control);
    std::vector<SettingEntry> entries;
    if (form.form == StoredAs::Nothing) return entries;
    int i = 0;
    for (const Text& text : control.ToTexts()) entries.push_back(EntryOf(form, section, i++, text));
    return entries;
}

void RestoreControl(Application& app, Control& control, TextView section) {
    SettingsStore& store = app.ports.settings;
    switch (FormOf(control)) {
        case StoredAs::Nothing:
            return;
        case StoredAs::Value:
            return RestoreText(app, control, section);
        case StoredAs::Buttons: {
            const auto buttons = static_cast<int>(control.ToTexts().size());
            for (int i = 0; i < buttons; ++i) RestoreText(app, control, MemberSection(section, i), i);
            return;
        }
        case StoredAs::Order:
            if (RestoreOrder(app, control, store.GetAllSettings(section))) return;
            // It is of another version; the next save writes a fresh section.
            return IgnoringFailures([&] { store.DeleteSetting(section); });
        case StoredAs::History:
        case StoredAs::Selector:
            return RestoreItems(app, control, section);
    }
}

void ReadValue(Application& app, TextView section, TextView key, const std::function<void()>& read) {
    app.trail.Guard("ReadValue", read, [&] { return Concat({"Load/", section, "/", key}); });
}

bool RestoreOrder(Application& app, Control& list, const SettingsStore::Pairs& pairs) {
    if (pairs.size() != list.ToTexts().size()) return false;
    const std::vector<Text> rows = SortMySettings(app, pairs);
    if (rows.empty()) return true;  // reported
    try {
        list.FromTexts({.texts = rows});
        return true;
    } catch (const Failure&) {
        return false;
    }
}

}  // namespace swiftroll::modCommon
