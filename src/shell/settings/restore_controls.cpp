// The walk that restores the settings.
#include <algorithm>

#include "app/french_date.h"
#include "shell/settings/column_settings.h"
#include "shell/settings/list_order.h"
#include "shell/settings/setting_parts.h"
#include "shell/settings/settings_sections.h"
#include "shell/settings/settings_walk.h"
#include "shell/settings/sorted_settings.h"
#include "text/ignoring_failures.h"

namespace swiftroll::modCommon {
namespace {

constexpr std::int32_t kSmallestRestored = 1000;  // twips

/// Reads a value, and passes over one that means nothing.
template <class Read>
void ReadValue(Application& app, TextView section, TextView key, Read&& read) {
    app.trail.Guard("ReadValue", std::forward<Read>(read), [&] {
        return Concat({"Load/", section, "/", key});
    });
}

int PixelsOf(TextView twips, std::int32_t smallest) {
    return std::max(ToLong(twips), smallest) / kTwipsPerPixel;
}

void RestoreSide(WindowPlace& place, TextView key, TextView value) {
    if (key == kTopKey) place.top = PixelsOf(value, 0);
    if (key == kLeftKey) place.left = PixelsOf(value, 0);
    if (key == kWidthKey) place.width = PixelsOf(value, kSmallestRestored);
    if (key == kHeightKey) place.height = PixelsOf(value, kSmallestRestored);
    if (key == kMaximisedKey) place.maximised = ToBoolean(value);
}

void RestorePlace(Application& app, Window& window) {
    WindowPlace& place = window.Place;
    const Text section = WindowSection(window);
    for (const auto& [key, value] : app.ports.settings.GetAllSettings(section)) {
        const bool isSize = key == kWidthKey || key == kHeightKey || key == kMaximisedKey;
        const bool isPlace = key == kTopKey || key == kLeftKey;
        if (!isPlace && !(isSize && place.resizable)) continue;
        place.known = true;
        ReadValue(app, section, key, [&, &key = key, &value = value] { RestoreSide(place, key, value); });
    }
}

void RestoreCombo(Application& app, ComboBox& combo, TextView section) {
    const auto pairs = app.ports.settings.GetAllSettings(section);
    if (pairs.empty()) return;
    const std::vector<Text> saved = SortMySettings0(app, pairs);
    if (Trim(saved.front()).empty()) return;
    // The items of a selector are fixed: what was saved of them is no more than a copy.
    if (combo.KeepsPick) {
        const auto& items = combo.Items();
        const auto picked = std::find(items.begin(), items.end(), saved.front());
        if (picked != items.end()) combo.SetListIndex(static_cast<int>(picked - items.begin()));
        return;
    }
    if (!combo.IsSelector()) {
        std::vector<Text> items = combo.Items();
        for (const Text& item : saved) {
            if (!Trim(item).empty()) items.push_back(item);
        }
        combo.SetItems(std::move(items));
    }
    combo.SetListIndex(0);
}

void RestoreList(Application& app, OrderedList& list, TextView section) {
    SettingsStore& store = app.ports.settings;
    if (SetListOrder(app, list, store.GetAllSettings(section)) != ListOrder::OfOtherItems) return;
    // It is of another version; the next save writes a fresh section.
    IgnoringFailures([&] { store.DeleteSetting(section); });
}

void RestoreControl(Application& app, Control& control, TextView section) {
    const auto withFirstValue = [&](TextView from, const auto& use) {
        const auto pairs = app.ports.settings.GetAllSettings(from);
        if (pairs.empty()) return;
        ReadValue(app, from, pairs.front().first, [&] { use(pairs.front().second); });
    };
    switch (control.Kind()) {
        case ControlKind::ComboBox:
            RestoreCombo(app, dynamic_cast<ComboBox&>(control), section);
            break;
        case ControlKind::OrderedList:
            RestoreList(app, dynamic_cast<OrderedList&>(control), section);
            break;
        case ControlKind::CheckBox:
            withFirstValue(section, [&](const Text& value) {
                dynamic_cast<CheckBox&>(control).SetChecked(ToBoolean(value));
            });
            break;
        case ControlKind::OptionButton:
            withFirstValue(section, [&](const Text& value) {
                dynamic_cast<OptionButton&>(control).SetValue(ToBoolean(value));
            });
            break;
        case ControlKind::OptionGroup: {
            auto& group = dynamic_cast<OptionGroup&>(control);
            for (int i = 0; i < static_cast<int>(group.Captions().size()); ++i) {
                withFirstValue(MemberSection(section, i),
                               [&](const Text& value) { group.SetMember(i, ToBoolean(value)); });
            }
            break;
        }
        case ControlKind::TextBox:
            withFirstValue(section,
                           [&](const Text& value) { dynamic_cast<TextBox&>(control).SetText(value); });
            break;
        case ControlKind::Colour:
        case ControlKind::Label:
        case ControlKind::Command:
            break;
    }
}

}  // namespace

SettingParts GetAllControls(Application& app, const std::vector<SavedWindow>& windows) {
    Text sName;
    app.trail.Guard(
        "GetAllControls",
        [&] {
            app.bFormLoading = true;
            const Moment now = app.ports.clock.Now();
            app.sRunStart = Concat({ShortDate(now), " ", LongTime(now)});
            for (const SavedWindow& saved : windows) {
                RestorePlace(app, saved.window);
                for (Control* control : saved.window.Controls()) {
                    sName = ControlSection(saved.window, control->Name());
                    RestoreControl(app, *control, sName);
                }
                for (Table* table : saved.tables) {
                    sName = ControlSection(saved.window, table->Name());
                    GetColumsSettings(app, *table, sName);
                }
            }
        },
        [&] {
            return Concat({"Load/", sName});
        });
    app.bFormLoading = false;
    return PartsOf(windows);
}

}  // namespace swiftroll::modCommon
