#pragma once

#include <memory>

#include "app/ports.h"

namespace swiftroll::platform {

class SqliteFile;

/// The user's settings in the file `settings.sqlite` of a folder. It never stops the program: what cannot be
/// read is told by `Notice`, and the defaults hold. Several programs may use the file at a time.
class SettingsFile : public SettingsStore {
  public:
    /// Opens the file; the folder is created when missing, and empty when there is none for this user. A
    /// damaged file is kept aside under another name, and a new one takes its place.
    explicit SettingsFile(TextView folder);
    ~SettingsFile() override;

    void SaveSetting(TextView section, TextView key, TextView value) override;
    void AddSetting(TextView section, TextView key, TextView value) override;
    Text GetSetting(TextView section, TextView key, TextView fallback) override;
    Pairs GetAllSettings(TextView section) override;
    void DeleteSetting(TextView section, TextView key) override;
    void DeleteSetting(TextView section) override;
    void Together(const std::function<void()>& writes) override;
    std::vector<SettingEntry> Everything() override;
    Text Notice() override { return notice_; }

  private:
    void Open();
    void OpenFile();
    void Tell(TextView sentence);
    void GiveUp(TextView reason);
    void Abandon();
    void Write(const char* sql, std::initializer_list<TextView> parameters);

    Text file_;
    std::unique_ptr<SqliteFile> database_;  // none when the file cannot be read
    Text notice_;
    TextView trouble_;  // why the file is not used, or why the present bracket failed
    bool isTogether_ = false;
    bool hasFailed_ = false;  // in the present bracket
};

}  // namespace swiftroll::platform
