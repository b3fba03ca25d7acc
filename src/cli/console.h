#pragma once

#include <chrono>

#include "app/status.h"
#include "arguments.h"
#include "shell/frm_main.h"

namespace swiftroll::cli {

/// Writes a Text and a line end to standard error as UTF-8, the lines of the text as lines of the terminal.
void PrintError(TextView text);

/// Answers the boxes as a user in a hurry would, and prints them.
class HeadlessDialogs : public Dialogs {
  public:
    explicit HeadlessDialogs(const Arguments& arguments) : arguments_(arguments) {}
    BoxAnswer Show(const MessageBox& box) override;
    /// There is nobody to ask: the window is closed at once.
    void ShowModal(Window& window) override { window.Hide(); }
    bool AskColour(std::uint32_t&) override { return false; }
    bool AskFont(CellFont&) override { return false; }
    void PopUp(const Menu&) override {}
    bool AskFile(const FileRequest& request, Text& chosen) override;

    /// Whether the question of the recalculation is answered Yes.
    bool recalculates = false;
    /// Whether the question which rows to write is answered "the marked ones".
    bool writesMarkedOnly = false;
    /// The answer of the next file dialogs.
    Text outputFile;
    /// Whether a box told that the job failed or was refused.
    bool HasRefusal() const { return hasRefusal_; }
    /// Whether that box was about the GEDCOM file, so that there is nothing to work on.
    bool InputIsUnreadable() const { return inputIsUnreadable_; }
    /// Called before a box is printed, to clear the progress line.
    Event beforeBox;

  private:
    const Arguments& arguments_;
    bool hasRefusal_ = false, inputIsUnreadable_ = false;
};

/// The progress line of a terminal: a bar, the percentage and the status text, redrawn at most ten times a
/// second.
class TerminalProgress : public StatusObserver {
  public:
    explicit TerminalProgress(bool enabled) : enabled_(enabled) {}
    void Watch(const StatusBar& status) { status_ = &status; }
    void StatusChanged() override;
    void Wipe();

  private:
    void Draw();
    bool enabled_;
    bool drawn_ = false;
    const StatusBar* status_ = nullptr;
    std::chrono::steady_clock::time_point lastDrawing_{};
};

/// Turns Ctrl-C into the abort request of the Escape key.
class InterruptPump : public EventPump {
  public:
    void Watch(Application& app) { app_ = &app; }
    void Yield() override;
    void YieldFor(int, const bool&) override { Yield(); }
    /// A limit of the command line; when it gives true, the operation is stopped in the same way.
    std::function<bool()> stopWhen;

  private:
    Application* app_ = nullptr;
    bool told_ = false;
};

}  // namespace swiftroll::cli
