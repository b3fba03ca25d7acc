#pragma once

#include "shell/settings/setting_parts.h"

namespace swiftroll {

/// The settings that outlive a run: all controls, saved at its end, and what the store has to tell.
class SavedSettings {
  public:
    SavedSettings(Application& app, std::vector<modCommon::SavedWindow> windows)
        : app_(app), windows_(std::move(windows)) {}

    /// Restores all settings, in the order of the controls.
    void GetAllControls();
    /// Saves all settings, as the end of the run does; a failure is reported, and the former ones stay.
    void SaveAllControls();

    /// Tells in the message what the store has noticed.
    void ShowNotice();
    /// Puts it back before what the start wrote over it.
    void RepeatNotice();

  private:
    Application& app_;
    std::vector<modCommon::SavedWindow> windows_;
    /// What the windows held after the restore, or the last save: what differs from it is new.
    modCommon::SettingParts shown_;
};

}  // namespace swiftroll
