// The walk that restores the settings.
#include <algorithm>

#include "app/french_date.h"
#include "shell/settings/column_settings.h"
#include "shell/settings/setting_parts.h"
#include "shell/settings/settings_sections.h"
#include "shell/settings/settings_walk.h"
#include "shell/settings/stored_controls.h"

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
