#pragma once

#include <memory>

#include "drawing/recorded_drawing.h"
#include "main_window.h"
#include "platform/machine.h"
#include "platform/mail.h"
#include "platform/settings_store.h"
#include "platform/std_files.h"
#include "platform/system_clock.h"
#include "platform/user_folders.h"
#include "qt_network.h"
#include "qt_ports.h"

namespace swiftroll::ui {

/// One life of the program with its windows: the ports of the toolkit, the core and what shows it.
class DesktopApplication {
  public:
    DesktopApplication();
    ~DesktopApplication();

    /// Starts the core with the file of the command line, or none, and shows the main window.
    /// False when the start failed, which was told, or when the user has already closed the window.
    bool Start(const QString& file);

    frmMain& Main() { return main_; }
    MainWindow& Window() { return *window_; }
    Presenter& ThePresenter() { return presenter_; }

  private:
    QtDialogs dialogs_;
    platform::SystemClock clock_;
    QtPump pump_;
    platform::StdFiles files_;
    platform::UserFolders folders_;
    QtStatus status_;
    platform::ThisMachine machine_;
    QtDesktop desktop_{pump_};
    platform::SettingsFile settings_;
    modPreview::RecordedDrawing preview_;
    QtNetwork network_;
    platform::DesktopMail mail_{pump_};
    frmMain main_;
    Presenter presenter_;
    std::unique_ptr<MainWindow> window_;
};

/// What every program with this window sets up once: the French texts and formats of the toolkit, and the
/// look of the windows.
void SetUpToolkit();

}  // namespace swiftroll::ui
