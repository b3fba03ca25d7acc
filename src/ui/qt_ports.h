#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include "app/ports.h"
#include "menus.h"
#include "presenter.h"

namespace swiftroll::ui {

/// Boxes, file dialogs and dialogs of the toolkit.
class QtDialogs : public Dialogs {
  public:
    /// To be called before anything is shown.
    void Attach(Presenter& presenter, QWidget& owner);
    /// The dialog that shows a window of controls.
    void ShowWith(Window& window, std::function<void()> show) { dialogs_[&window] = std::move(show); }

    BoxAnswer Show(const MessageBox& box) override;
    void ShowModal(Window& window) override;
    bool AskFile(const FileRequest& request, Text& chosen) override;
    bool AskColour(std::uint32_t& colour) override;
    bool AskFont(CellFont& font) override;
    void PopUp(const Menu& menu) override;

  private:
    bool IsEnding() const { return presenter_ == nullptr || presenter_->Main().bEnded; }
    QWidget* Owner() const;

    Presenter* presenter_ = nullptr;
    QWidget* owner_ = nullptr;
    std::unordered_map<Window*, std::function<void()>> dialogs_;
};

/// Lets the events of the window in while the core works, and ends the work when the program is to end.
class QtPump : public EventPump {
  public:
    void Attach(Presenter& presenter) { presenter_ = &presenter; }
    void Yield() override;
    void YieldFor(int milliseconds, const bool& stop) override;

  private:
    Presenter* presenter_ = nullptr;
    QElapsedTimer sincePump_;
    int calls_ = 0;
};

/// Shows the progress of operations that let no events in.
class QtStatus : public StatusObserver {
  public:
    /// `show` brings the status bar up to date.
    void Attach(Presenter& presenter, std::function<void()> show) {
        presenter_ = &presenter;
        show_ = std::move(show);
    }
    void StatusChanged() override;

  private:
    Presenter* presenter_ = nullptr;
    std::function<void()> show_;
    QElapsedTimer sinceShow_;
};

/// The clipboard, the keyboard and the desktop.
class QtDesktop : public Clipboard, public Keyboard, public Desktop {
  public:
    /// `events` are handled while the desktop opens a file.
    explicit QtDesktop(EventPump& events) : pump_(events) {}
    void SetText(TextView text) override;
    bool IsShiftDown() override;
    OpenResult Open(TextView file, int& number) override;
    bool ChooseProgram(TextView file) override;
    bool OpenHelp(TextView file, int topic) override;
    void OpenAddress(TextView address) override;

  private:
    int OpenLocal(const QString& path);
    EventPump& pump_;
};

}  // namespace swiftroll::ui
