#pragma once

#include <map>

#include "app/ports.h"

namespace swiftroll::test {

/// Settings in memory, in place of a file that outlives the application.
class MemorySettings : public SettingsStore {
  public:
    void SaveSetting(TextView section, TextView key, TextView value) override;
    void AddSetting(TextView section, TextView key, TextView value) override;
    Text GetSetting(TextView section, TextView key, TextView fallback) override;
    Pairs GetAllSettings(TextView section) override;
    void DeleteSetting(TextView section, TextView key) override;
    void DeleteSetting(TextView section) override;
    void Together(const std::function<void()>& writes) override;
    std::vector<SettingEntry> Everything() override;
    Text Notice() override { return notice; }

    /// Pairs by section.
    using Sections = std::map<Text, std::map<Text, Text, std::less<>>, std::less<>>;
    Sections sections;
    Text notice;
    /// Number of writes until the disk is full.
    int room = -1;

  private:
    void Use();
    bool failed_ = false;  // in the present bracket
};

}  // namespace swiftroll::test
