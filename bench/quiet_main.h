#pragma once

#include <string>

#include "platform/machine.h"
#include "platform/std_files.h"
#include "platform/system_clock.h"
#include "platform/user_folders.h"
#include "shell/frm_main.h"
#include "text/code_page.h"

namespace bench {

/// Nobody to ask and nobody to tell: boxes are answered with OK, and the recalculation with No.
class QuietDialogs : public swiftroll::Dialogs {
  public:
    /// What every question for a file gets; empty for Cancel.
    std::string file;

    swiftroll::BoxAnswer Show(const swiftroll::MessageBox& box) override {
        return box.topic == swiftroll::BoxTopic::Recalculation ? swiftroll::BoxAnswer::No
                                                               : swiftroll::BoxAnswer::Ok;
    }
    void ShowModal(swiftroll::Window& window) override { window.Hide(); }
    bool AskFile(const FileRequest&, swiftroll::Text& chosen) override {
        if (!file.empty()) chosen = swiftroll::FileNameToText(file);
        return !file.empty();
    }
    bool AskColour(std::uint32_t&) override { return false; }
    bool AskFont(swiftroll::CellFont&) override { return false; }
    void PopUp(const swiftroll::Menu&) override {}
};

class QuietStatus : public swiftroll::StatusObserver {
  public:
    void StatusChanged() override {}
};

/// No events to pump.
class QuietPump : public swiftroll::EventPump {
  public:
    void Yield() override {}
    void YieldFor(int, const bool&) override {}
};

/// An application that nobody looks at, on the files and the clock of the machine.
template <class Pump = QuietPump>
struct QuietMain {
    QuietDialogs dialogs;
    swiftroll::platform::SystemClock clock;
    Pump pump;
    swiftroll::platform::StdFiles files;
    swiftroll::platform::UserFolders folders;
    QuietStatus status;
    swiftroll::platform::ThisMachine machine;
    swiftroll::NoDesktop desktop;
    swiftroll::NoSettings settings;
    swiftroll::NoDrawingDevice preview;
    swiftroll::frmMain main{{dialogs, clock, pump, files, folders, status, machine, desktop, desktop, desktop,
                             settings, preview, desktop, desktop}};

    QuietMain() { main.Form_Load({}); }
    void Read(const std::string& gedcom) {
        main.cboGedIn.SetText(swiftroll::FileNameToText(gedcom));
        main.cmdLoad.Click();
    }
};

}  // namespace bench
