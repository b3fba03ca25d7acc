// The walk that saves the settings.
#include "shell/column_settings.h"
#include "shell/ignoring_failures.h"
#include "shell/list_order.h"
#include "shell/settings_sections.h"
#include "shell/settings_walk.h"
#include "shell/sorted_settings.h"

namespace swiftroll::modCommon {
namespace {

/// No history is longer, so that no item stands behind it.
constexpr int kMostItems = 10;
constexpr int kSmallestSaved = 200;

void SaveProduct(Application& app) {
    SettingsStore& store = app.ports.settings;
    IgnoringFailures([&] { store.SaveSetting(kProductSection, kVersionKey, app.sVersion); });
    IgnoringFailures([&] { store.SaveSetting(kProductSection, kLastRunKey, app.sRunStart); });
    IgnoringFailures([&] {
        const std::int64_t saves = ToLong(store.GetSetting(kProductSection, app.sVersion, "0"));
        store.SaveSetting(kProductSection, app.sVersion, Decimal(saves + 1));
    });
}

void SavePlace(SettingsStore& store, const Window& window) {
    const WindowPlace& place = window.Place;
    if (!place.known) return;
    const Text section = WindowSection(window);
    const auto save = [&](TextView key, int pixels, bool isUsable, std::int64_t fallback) {
        store.SaveSetting(section, key, Decimal(isUsable ? std::int64_t{pixels} * kTwipsPerPixel : fallback));
    };
    // A minimised window has no honest place.
    save(kTopKey, place.top, place.top >= 0, 0);
    save(kLeftKey, place.left, place.left >= 0, 0);
    save(kWidthKey, place.width, place.width > 0, kSmallestSaved);
    save(kHeightKey, place.height, place.height > 0, kSmallestSaved);
}

void SaveCombo(SettingsStore& store, const ComboBox& combo, TextView section) {
    int number = 0;
    for (const Text& item : combo.Items()) {
        if (!Trim(item).empty()) store.SaveSetting(section, Decimal(number++, kItemDigits), item);
    }
    // The list was longer once, perhaps.
    for (; number < kMostItems; ++number) {
        IgnoringFailures([&] { store.DeleteSetting(section, Decimal(number, kItemDigits)); });
    }
}

void SaveControl(SettingsStore& store, const Control& control, TextView section) {
    switch (control.Kind()) {
        case ControlKind::ComboBox:
            SaveCombo(store, dynamic_cast<const ComboBox&>(control), section);
            break;
        case ControlKind::OrderedList:
            SaveListOrder(store, dynamic_cast<const OrderedList&>(control), section);
            break;
        case ControlKind::CheckBox: {
            const bool checked = dynamic_cast<const CheckBox&>(control).Checked();
            store.SaveSetting(section, kCheckOrOptionKey, checked ? "1" : "0");
            break;
        }
        case ControlKind::OptionButton: {
            const bool value = dynamic_cast<const OptionButton&>(control).Value();
            store.SaveSetting(section, kCheckOrOptionKey, BooleanText(value));
            break;
        }
        case ControlKind::OptionGroup: {
            const auto& group = dynamic_cast<const OptionGroup&>(control);
            for (int i = 0; i < static_cast<int>(group.Captions().size()); ++i) {
                store.SaveSetting(MemberSection(section, i), kCheckOrOptionKey,
                                  BooleanText(group.Index() == i));
            }
            break;
        }
        case ControlKind::TextBox:
            store.SaveSetting(section, kTextKey, dynamic_cast<const TextBox&>(control).Get());
            break;
        case ControlKind::Colour:
        case ControlKind::Label:
        case ControlKind::Command:
            break;
    }
}

}  // namespace

void SaveAllControls(Application& app, const std::vector<SavedWindow>& windows) {
    SettingsStore& store = app.ports.settings;
    Text sForm, sName;
    const auto walk = [&] {
        SaveProduct(app);
        for (const SavedWindow& saved : windows) {
            sForm = saved.window.Name();
            SavePlace(store, saved.window);
            for (const Control* control : saved.window.Controls()) {
                sName = ControlSection(saved.window, control->Name());
                SaveControl(store, *control, sName);
            }
            for (const Table* table : saved.tables) {
                sName = ControlSection(saved.window, table->Name());
                if (!SaveColumnsSettings(app, *table, sName)) return;
            }
        }
    };
    app.trail.Guard(
        "SaveAllControls", [&] { store.Together(walk); },
        [&] {
            return Concat({"Forms=", sForm, "/sName=", sName});
        });
}

}  // namespace swiftroll::modCommon
