#pragma once

#include <deque>
#include <vector>

#include "app/ports.h"
#include "shell/frm_main.h"
#include "support/memory_files.h"
#include "support/memory_settings.h"

namespace swiftroll::test {

/// Answers the boxes from a script, and keeps what they said. Without a script: OK, Yes, and No to the
/// question of the recalculation.
class ScriptedDialogs : public Dialogs {
  public:
    BoxAnswer Show(const MessageBox& box) override;
    void ShowModal(Window& window) override;
    bool AskFile(const FileRequest& request, Text& chosen) override;
    bool AskColour(std::uint32_t& colour) override;
    bool AskFont(CellFont& font) override;
    void PopUp(const Menu& menu) override;

    std::vector<MessageBox> boxes;
    std::vector<FileRequest> fileRequests;
    /// Answers of the next boxes, whatever they ask.
    std::deque<BoxAnswer> answers;
    /// Works with a window that is shown; without it the window is closed at once.
    std::function<void(Window&)> onWindow;
    /// Names that the next file dialogs give; none left means Cancel.
    std::deque<Text> files;
    /// What the colour and font dialogs give; without it they are cancelled.
    std::optional<std::uint32_t> colour;
    std::optional<CellFont> font;
    /// Chooses in a menu that pops up; without it the menu is dismissed.
    std::function<void(const Menu&)> onMenu;
};

/// Sunday 22 November 2026, 14:05:09.
class StandingClock : public Clock {
  public:
    Moment Now() override { return now; }
    Moment now{2026, 11, 22, 0, 14, 5, 9};
};

/// Counts the yields and runs `onYield` at each of them.
class HookedPump : public EventPump {
  public:
    void Yield() override {
        ++yields;
        if (onYield) onYield();
    }
    void YieldFor(int, const bool&) override { Yield(); }
    int yields = 0;
    std::function<void()> onYield;
};

class TestFolders : public Folders {
  public:
    Text UserData() override { return userData; }
    Text UserDocuments() override { return "/docs"; }
    Text Temporary() override { return "/tmp"; }
    Text Models() override { return "/models"; }
    Text Program() override { return "/program"; }
    void Create(TextView folder) override { created.emplace_back(folder); }
    Text Separator() override { return "/"; }
    Text userData = "/data";
    std::vector<Text> created;
};

class SilentStatus : public StatusObserver {
  public:
    void StatusChanged() override {}
};

class TestMachine : public Machine {
  public:
    std::uint64_t Memory() override { return memory; }
    std::uint64_t AvailableMemory() override { return available; }
    SystemVersion System() override { return system; }
    SystemVersion system{"Test", 1, 2, 3, 4};
    std::uint64_t memory = std::uint64_t{1} << 34, available = memory;
};

/// Keeps what reached the clipboard and what was opened.
struct TestDesktop : Clipboard, Keyboard, Desktop, Network, Mail {
    void SetText(TextView text) override { clipboard = text; }
    bool IsShiftDown() override { return shiftIsDown; }
    OpenResult Open(TextView file, int& number) override {
        opened.emplace_back(file);
        number = openNumber;
        return openResult;
    }
    bool ChooseProgram(TextView file) override {
        opened.emplace_back("with:" + Text(file));
        return canChoose;
    }
    bool OpenHelp(TextView file, int topic) override {
        opened.emplace_back(Text(file) + "#" + std::to_string(topic));
        return openResult == OpenResult::Opened;
    }
    void OpenAddress(TextView address) override { opened.emplace_back(address); }

    void Download(TextView address, TextView localFile) override {
        opened.emplace_back(address);
        if (onDownload) onDownload(localFile);
    }
    bool Compose(const MailMessage& message, TextView) override {
        mails.push_back(message);
        return writesDraft;
    }

    Text clipboard;
    /// Puts what the web gives into the local file.
    std::function<void(TextView localFile)> onDownload;
    std::vector<MailMessage> mails;
    bool writesDraft = false;
    bool shiftIsDown = false;
    OpenResult openResult = OpenResult::Opened;
    int openNumber = 0;
    bool canChoose = true;
    std::vector<Text> opened;
};

/// Keeps the texts that reached the sheet.
struct TestSheet : NoDrawingDevice {
    void PrintTexts(std::int64_t, std::int64_t, std::int64_t, std::int64_t,
                    const std::vector<PrintedText>& printed) override {
        texts.insert(texts.end(), printed.begin(), printed.end());
    }
    std::vector<PrintedText> texts;
};

/// All ports of one application without a screen.
struct TestPorts {
    ScriptedDialogs dialogs;
    StandingClock clock;
    HookedPump events;
    MemoryFiles files;
    TestFolders folders;
    SilentStatus status;
    TestMachine machine;
    TestDesktop desktop;
    MemorySettings settings;
    TestSheet preview;
    Ports All() {
        return {dialogs, clock,   events,  files,    folders, status,  machine,
                desktop, desktop, desktop, settings, preview, desktop, desktop};
    }
};

/// A started application. `log` of the error trail is "/data/SwiftRoll/SwiftRoll.log".
struct TestMain : TestPorts {
    TestMain() : main(All()) { main.Form_Load({}); }
    /// Reads `gedcom` as the file "in.ged" by the command.
    void Read(TextView gedcom);
    /// The same, and computes the list.
    void ReadAndList(TextView gedcom);
    frmMain main;
};

/// The rows of a table, cells joined by "|", in their present order.
std::vector<Text> RowsOf(Table& table);
/// Rows to compare with them.
inline std::vector<Text> Rows(std::initializer_list<TextView> rows) { return {rows.begin(), rows.end()}; }
/// Some cells of every row, joined by "|".
std::vector<Text> CellsOf(Table& table, std::initializer_list<ColumnId> columns);
/// One row, cells joined by "|".
Text RowText(const Row& row);
/// `text` with "\n" as "\r\n".
Text WithCrLf(TextView text);

}  // namespace swiftroll::test
