// The walk that saves the settings.
#include "shell/settings/setting_parts.h"
#include "shell/settings/settings_sections.h"
#include "shell/settings/settings_walk.h"
#include "text/ignoring_failures.h"

namespace swiftroll::modCommon {
namespace {

void SaveProduct(Application& app) {
    SettingsStore& store = app.ports.settings;
    IgnoringFailures([&] { store.SaveSetting(kProductSection, kVersionKey, app.sVersion); });
    IgnoringFailures([&] { store.SaveSetting(kProductSection, kLastRunKey, app.sRunStart); });
    IgnoringFailures([&] {
        const std::int64_t saves = ToLong(store.GetSetting(kProductSection, app.sVersion, "0"));
        store.SaveSetting(kProductSection, app.sVersion, Decimal(saves + 1));
    });
}

/// False after a failure in the columns of a table, which is reported with the column.
bool SaveOne(Application& app, const SettingPart& part, const SettingPart& shown) {
    const auto save = [&] {
        SavePart(app.ports.settings, part, shown);
        return true;
    };
    if (part.table.empty()) return save();
    return app.trail.Guard("SaveColumnsSettings", save, [&] {
        return Concat({part.table, "/", part.section, "/", part.column});
    });
}

}  // namespace

void SaveAllControls(Application& app, const std::vector<SavedWindow>& windows, SettingParts& shown) {
    SettingParts parts = PartsOf(windows);
    // Where nothing was restored, all is new.
    shown.resize(parts.size());
    Text sForm, sName;
    const auto walk = [&] {
        SaveProduct(app);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            sForm = parts[i].window;
            sName = parts[i].section;
            if (!SaveOne(app, parts[i], shown[i])) return;
        }
    };
    app.trail.Guard(
        "SaveAllControls",
        [&] {
            app.ports.settings.Together(walk);
            shown = std::move(parts);
        },
        [&] {
            return Concat({"Forms=", sForm, "/sName=", sName});
        });
}

}  // namespace swiftroll::modCommon
