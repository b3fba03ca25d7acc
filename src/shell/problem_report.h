#pragma once

#include "shell/main_commands.h"
#include "shell/saved_settings.h"
#include "update/frm_updates.h"

namespace swiftroll {

/// The problem report and the update check.
class ProblemReport {
  public:
    /// The report is about the `settings`, which are saved before.
    ProblemReport(Application& app, ReportCommands& commands, frmUpdates& updates, SavedSettings& settings);

  private:
    void mnuCheckUpdate_Click();
    void mnuSaveParams_Click();
    void SendReport();
    bool ExportSettings(TextView sRegFile);
    void SendMail(TextView sRegFile, TextView sLogFile, TextView& step);

    Application& app_;
    frmUpdates& updates_;
    SavedSettings& settings_;
};

}  // namespace swiftroll
