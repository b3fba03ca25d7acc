// The walk that restores the settings.
#include <algorithm>
#include <optional>

#include "app/french_date.h"
#include "shell/settings/column_settings.h"
#include "shell/settings/setting_parts.h"
#include "shell/settings/settings_sections.h"
#include "shell/settings/settings_walk.h"
#include "shell/settings/stored_controls.h"
#include "text/failure.h"

namespace swiftroll::modCommon {
namespace {

constexpr std::int32_t kSmallestRestored = 1000;  // twips

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

/// Tells of the values whose bytes are no text; they stay as they are.
void TellUnreadable(Application& app) {
    SettingsStore& store = app.ports.settings;
    std::optional<Text> section;
    SettingsStore::Pairs readable;
    for (const SettingEntry& entry : store.Everything()) {
        if (section != entry.section) {
            section = entry.section;
            readable = store.GetAllSettings(entry.section);
        }
        if (HoldsKey(readable, entry.key)) continue;
        ReadValue(app, entry.section, entry.key, [] { throw Failure(FailureKind::TypeMismatch); });
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
            TellUnreadable(app);
        },
        [&] {
            return Concat({"Load/", sName});
        });
    app.bFormLoading = false;
    return PartsOf(windows);
}

}  // namespace swiftroll::modCommon
