#include "support/memory_settings.h"

#include "text/failure.h"

namespace swiftroll::test {

void MemorySettings::Use() {
    failed_ = failed_ || room == 0;
    if (failed_) throw Failure(FailureKind::FileAccess);
    if (room > 0) --room;
}

void MemorySettings::SaveSetting(TextView section, TextView key, TextView value) {
    Use();
    sections[Text(section)][Text(key)] = value;
}

void MemorySettings::AddSetting(TextView section, TextView key, TextView value) {
    Use();
    sections[Text(section)].emplace(Text(key), Text(value));
}

Text MemorySettings::GetSetting(TextView section, TextView key, TextView fallback) {
    for (const auto& [name, value] : GetAllSettings(section)) {
        if (name == key) return value;
    }
    return Text(fallback);
}

SettingsStore::Pairs MemorySettings::GetAllSettings(TextView section) {
    const auto found = sections.find(section);
    if (found == sections.end()) return {};
    // No order is promised, so not that of the keys.
    return {found->second.rbegin(), found->second.rend()};
}

void MemorySettings::DeleteSetting(TextView section, TextView key) {
    const auto found = sections.find(section);
    if (found != sections.end()) found->second.erase(Text(key));
}

void MemorySettings::DeleteSetting(TextView section) {
    const Text below = Text(section) + "\\";
    std::erase_if(sections, [&](const auto& entry) {
        return entry.first == section || entry.first.starts_with(below);
    });
}

void MemorySettings::Together(const std::function<void()>& writes) {
    const Sections before = sections;
    failed_ = false;
    try {
        writes();
        if (failed_) throw Failure(FailureKind::FileAccess);
    } catch (...) {
        sections = before;
        throw;
    }
}

std::vector<SettingEntry> MemorySettings::Everything() {
    std::vector<SettingEntry> entries;
    for (const auto& [section, pairs] : sections) {
        for (const auto& [key, value] : pairs) entries.push_back({section, key, value});
    }
    return entries;
}

}  // namespace swiftroll::test
