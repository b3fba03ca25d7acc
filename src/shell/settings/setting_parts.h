#pragma once

#include "shell/settings/settings_walk.h"
#include "shell/settings/stored_controls.h"

namespace swiftroll::modCommon {

/// What a save writes as a whole: the value of a control, one side of a window, the order of the columns of a
/// table, the width of one of them.
struct SettingPart {
    StoredAs form = StoredAs::Value;
    Text window;   // by its name, for reports, as are the next ones
    Text section;  // of the control or of the table
    Text table = {}, column = {};
    std::vector<SettingEntry> entries = {};
};

/// What the windows hold at present, in an order that never changes: parts of the same place belong together.
using SettingParts = std::vector<SettingPart>;
SettingParts PartsOf(const std::vector<SavedWindow>& windows);

/// Writes a part into the store, in a bracket. `shown` is the same part as it stood after the last restore or
/// save: a value that is still the same is not written over what stands in the store, which another program
/// may have set since, or which this one could not read. Histories are merged.
/// @throws Failure FileAccess
void SavePart(SettingsStore& store, const SettingPart& part, const SettingPart& shown);

}  // namespace swiftroll::modCommon
