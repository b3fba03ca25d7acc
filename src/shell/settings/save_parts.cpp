// How what this program holds meets what stands in the store.
#include <algorithm>

#include "shell/settings/history.h"
#include "shell/settings/setting_parts.h"
#include "shell/settings/settings_sections.h"
#include "text/ignoring_failures.h"

namespace swiftroll::modCommon {
namespace {

using Names = std::vector<Text>;

void Save(SettingsStore& store, const SettingEntry& entry) {
    store.SaveSetting(entry.section, entry.key, entry.value);
}

void Add(SettingsStore& store, const SettingEntry& entry) {
    store.AddSetting(entry.section, entry.key, entry.value);
}

void Delete(SettingsStore& store, TextView section, TextView key) {
    IgnoringFailures([&] { store.DeleteSetting(section, key); });
}

void SaveValue(SettingsStore& store, const SettingPart& part, const SettingPart& shown) {
    const bool isChanged = part.entries != shown.entries;
    if (isChanged && part.form == StoredAs::Order) {
        IgnoringFailures([&] { store.DeleteSetting(part.section); });
    }
    if (part.entries.empty()) {
        for (const SettingEntry& gone : shown.entries) Delete(store, gone.section, gone.key);
    }
    for (const SettingEntry& entry : part.entries) {
        isChanged ? Save(store, entry) : Add(store, entry);
    }
}

/// All items that a selector had once and has no more go.
void SaveSelector(SettingsStore& store, const SettingPart& part) {
    for (const SettingEntry& entry : part.entries) Save(store, entry);
    for (const auto& [key, value] : store.GetAllSettings(part.section)) {
        const auto number = ParseDecimal(key);
        if (number && *number >= static_cast<std::int64_t>(part.entries.size())) {
            Delete(store, part.section, key);
        }
    }
}

Names NamesOf(const SettingPart& part) {
    Names names;
    for (const SettingEntry& entry : part.entries) names.push_back(entry.value);
    return names;
}

Text KeyOf(std::size_t number) { return Decimal(static_cast<std::int64_t>(number), kItemDigits); }

Names StoredNames(const SettingsStore::Pairs& pairs) {
    Names names;
    for (std::size_t i = 0; i < kLongestHistory; ++i) {
        for (const auto& [key, name] : pairs) {
            if (key == KeyOf(i) && !Trim(name).empty()) names.push_back(name);
        }
    }
    return names;
}

bool Holds(const Names& names, TextView name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const Text& other) { return SameButCase(other, name); });
}

/// What this program has, without what another one removed since, and behind it what another one added.
Names Merged(const Names& own, const Names& shown, const Names& stored) {
    Names merged;
    // A name that was put on top since is in use, whatever became of it elsewhere.
    const bool hasNewTop = !own.empty() && (shown.empty() || !SameButCase(own.front(), shown.front()));
    for (const Text& name : own) {
        const bool isOnTop = hasNewTop && &name == &own.front();
        if (isOnTop || !Holds(shown, name) || Holds(stored, name)) merged.push_back(name);
    }
    for (const Text& name : stored) {
        if (!Holds(shown, name) && !Holds(merged, name)) merged.push_back(name);
    }
    merged.resize(std::min(merged.size(), kLongestHistory));
    return merged;
}

/// The running numbers that the names of a history may have: a name that cannot be read keeps its own.
std::vector<Text> UsableKeys(SettingsStore& store, TextView section, const SettingsStore::Pairs& readable) {
    std::vector<Text> keys;
    for (std::size_t i = 0; i < kLongestHistory; ++i) keys.push_back(KeyOf(i));
    for (const SettingEntry& entry : store.Everything()) {
        if (entry.section == section && !HoldsKey(readable, entry.key)) std::erase(keys, entry.key);
    }
    return keys;
}

void SaveHistory(SettingsStore& store, const SettingPart& part, const SettingPart& shown) {
    const auto pairs = store.GetAllSettings(part.section);
    const Names names = Merged(NamesOf(part), NamesOf(shown), StoredNames(pairs));
    const std::vector<Text> keys = UsableKeys(store, part.section, pairs);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i < names.size()) {
            store.SaveSetting(part.section, keys[i], names[i]);
        } else {
            Delete(store, part.section, keys[i]);  // the list was longer once, perhaps
        }
    }
}

}  // namespace

void SavePart(SettingsStore& store, const SettingPart& part, const SettingPart& shown) {
    switch (part.form) {
        case StoredAs::Nothing:
            return;
        case StoredAs::Value:
        case StoredAs::Buttons:
        case StoredAs::Order:
            return SaveValue(store, part, shown);
        case StoredAs::History:
            return SaveHistory(store, part, shown);
        case StoredAs::Selector:
            return SaveSelector(store, part);
    }
}

}  // namespace swiftroll::modCommon
