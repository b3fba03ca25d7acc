#pragma once

#include "app/application.h"
#include "update/ini_file.h"
#include "update/update_tree.h"

namespace swiftroll {

/// A label that opens an address.
struct DownloadLabel : Command {
    using Command::Command;
    /// The address that a browser opens; empty when there is none.
    Text Tag;
};

/// The window of the versions, without a screen: fetches the list of them and tells what is new.
class frmUpdates : public Window {
  public:
    explicit frmUpdates(Application& app);

    UpdateTree tvwUpdates;
    DownloadLabel lblDownloadBeta, lblDownloadLastFull, lblDownloadLastUpd;
    /// Whether the wait pointer stands over this window.
    bool bWaitCursor = false;
    /// Ends the waits of the blinking: any key or a press of the mouse sets it.
    bool bStopBlink = false;
    /// For the presentation, which draws the title of the window in the other state.
    std::function<void(bool inverted)> OnInvertCaption;

    /// Told when a check could not be made, though there is a site to ask.
    Event OnFailed;

    /// Looks whether there is a newer version. With `bSilent` nothing is shown unless there is one, and a
    /// failure is an entry of the log and a line in the message.
    /// @throws Failure unless silent, for a list with a version that is none, or with a section named twice
    void GetUpdates(bool bSilent);

  private:
    void CheckVersions(bool bSilent);
    /// Tells in the window and in the message why the check could not be made.
    void ShowImpossible(std::initializer_list<TextView> lines);
    void AddRoot();
    bool DownloadFile(TextView sUrl, TextView sLocal);
    std::vector<Text> GetKeyValues(TextView sSection, TextView sKey);
    void ShowVersions(const std::vector<Text>& asVers);
    void AddVersion(TextView sSection);
    void AddComments(UpdateNode& node, TextView sSection, bool bold);
    void FillLabels();
    static void Fill(DownloadLabel& label, TextView sTag, TextView sCaption, TextView sNothing);
    void BlinkWindow(int iCount, int iMilliseconds);

    Application& app_;
    cIniFile ini_;
    // Whether the tree holds the list of the check that runs, as far as it came.
    bool isListShown_ = false;
    // The highest version of the check that runs.
    Text sBestVers, sBestFile, sBestSize, sBestFileUpd, sBestSizeUpd;
};

}  // namespace swiftroll
