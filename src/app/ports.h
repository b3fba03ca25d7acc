#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "app/cell_font.h"
#include "app/drawing_device.h"
#include "text/text.h"

namespace swiftroll {

enum class BoxButtons { Ok, OkCancel, OkCancelOkToAll, YesNo, YesNoCancel };
enum class BoxIcon { None, Exclamation, Question };
/// `OkToAll` is OK to this box and to those of its kind that would follow.
enum class BoxAnswer { Ok, Cancel, OkToAll, Yes, No };

/// Which question a box asks or what it tells, for presentations that answer by themselves.
enum class BoxTopic {
    Message,
    UnreadableInput,
    Charset,
    LineError,
    Recalculation,
    WriteAllRows,
    OverwriteFile,
    LargeFile,
    UnequalSizes
};

struct MessageBox {
    Text title;
    Text text;
    BoxButtons buttons = BoxButtons::Ok;
    BoxIcon icon = BoxIcon::None;
    BoxTopic topic = BoxTopic::Message;
    /// What the Enter key answers, where it is not the first button.
    std::optional<BoxAnswer> preset = {};
};

class Window;
struct Menu;

/// The user's answers: boxes, file dialogs, windows of questions and context menus.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    /// Shows a modal box and gives the answer.
    virtual BoxAnswer Show(const MessageBox& box) = 0;
    /// Shows a window as a modal dialog until it is hidden.
    virtual void ShowModal(Window& window) = 0;

    struct FileRequest {
        bool save = false;
        Text title;
        Text fileName;
        Text filter;
        Text extension;
    };
    /// Asks for a file; false when the user cancels, else `chosen` is the name.
    virtual bool AskFile(const FileRequest& request, Text& chosen) = 0;
    /// Asks for a colour, 0x00BBGGRR, or for the font of drawings, beginning with the present one; false when
    /// the user cancels.
    virtual bool AskColour(std::uint32_t& colour) = 0;
    virtual bool AskFont(CellFont& font) = 0;
    /// Shows the entries of a menu at the pointer; returns when the chosen command has run, or when the user
    /// dismissed the menu.
    virtual void PopUp(const Menu& menu) = 0;
};

/// A moment of local time.
struct Moment {
    int year = 0, month = 0, day = 0;
    /// 0 is Sunday.
    int weekday = 0;
    int hour = 0, minute = 0, second = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual Moment Now() = 0;
};

/// Lets pending user-interface events be handled. Long loops call it once per unit of work, millions of
/// times, so an implementation looks at a clock and really pumps about sixty times a second.
class EventPump {
  public:
    virtual ~EventPump() = default;
    virtual void Yield() = 0;
    /// Lets events be handled for so long, or until `stop` is set by one of them.
    virtual void YieldFor(int milliseconds, const bool& stop) = 0;
};

/// A file open for reading or writing. The destructor closes it without telling of failures.
class File {
  public:
    virtual ~File() = default;
    /// Reads up to `size` bytes into `buffer`; 0 at the end of the file. @throws Failure FileAccess
    virtual std::size_t Read(char* buffer, std::size_t size) = 0;
    /// The same from a position, 0 for the first byte. Not every file can be read out of order.
    virtual std::size_t ReadAt(std::int64_t position, char* buffer, std::size_t size);
    /// @throws Failure FileAccess, as on a full disk
    virtual void Write(TextView bytes) = 0;
    /// Length in bytes at present. @throws Failure FileAccess
    virtual std::int64_t Length() = 0;
    /// Flushes and closes; only now is it sure that all was written. @throws Failure FileAccess
    virtual void Close() = 0;
};

/// What tells whether a file is still as it was: its length in bytes and the time of its last change, in
/// units of the platform.
struct FileStamp {
    std::int64_t length = 0, time = 0;
    bool operator==(const FileStamp&) const = default;
};

/// The files of the platform, by the names that the program uses for them.
class Files {
  public:
    enum class Mode { Read, Write, Append };
    virtual ~Files() = default;
    /// @throws Failure FileNotFound, FileAccess; a folder cannot be opened
    virtual std::unique_ptr<File> Open(TextView name, Mode mode) = 0;
    virtual bool Exists(TextView name) = 0;
    /// Whether the two names, of existing files, lead to one file, through links too.
    virtual bool AreSame(TextView a, TextView b) = 0;
    /// The present state of a regular file; nothing for what is none, such as a pipe, or is not there.
    virtual std::optional<FileStamp> Stamp(TextView name) = 0;
    /// Removes the file if it is a regular one. @throws Failure FileAccess
    virtual void Delete(TextView name) = 0;
    /// Bytes that can still be written to the disk on which a file stands or would stand. Nothing for what
    /// takes no room there, such as a pipe or a device, and where the system does not tell.
    virtual std::optional<std::uint64_t> RoomFor(TextView name) = 0;
};

/// Folders of the machine; an empty text where there is none. No separator at the end.
class Folders {
  public:
    virtual ~Folders() = default;
    /// Folder of the user's application data, created when missing.
    virtual Text UserData() = 0;
    virtual Text UserDocuments() = 0;
    virtual Text Temporary() = 0;
    /// Folder of the shipped models, beside the program or in its installed data.
    virtual Text Models() = 0;
    virtual Text Program() = 0;
    /// Creates a folder unless it is there; a failure is ignored, since the first file written there tells
    /// it.
    virtual void Create(TextView folder) = 0;
    /// What stands between the folders of a path.
    virtual Text Separator() = 0;
};

/// The operating system as it tells of itself. `name` is empty where the numbers tell it.
struct SystemVersion {
    Text name;
    int major = 0, minor = 0, build = 0, platformId = 0;
};

/// What the machine is.
class Machine {
  public:
    /// @throws Failure when the system does not tell
    virtual SystemVersion System() = 0;
    virtual ~Machine() = default;
    /// Bytes of memory that the program may count on at most.
    virtual std::uint64_t Memory() = 0;
    /// Bytes that the system can still give it now.
    virtual std::uint64_t AvailableMemory() = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    /// Empties the clipboard and gives it a text.
    virtual void SetText(TextView text) = 0;
};

class Keyboard {
  public:
    virtual ~Keyboard() = default;
    virtual bool IsShiftDown() = 0;
};

/// What the desktop does with files and addresses.
class Desktop {
  public:
    virtual ~Desktop() = default;
    enum class OpenResult { Opened, FileNotFound, NoProgram, Refused };
    /// Opens a file with the program that belongs to it; `number` tells why it was refused. Waits for the
    /// answer while events are handled.
    virtual OpenResult Open(TextView file, int& number) = 0;
    /// Lets the user choose a program for a file that none belongs to; false when that cannot be done.
    virtual bool ChooseProgram(TextView file) = 0;
    /// Opens the help at the page of a topic, above 0, or at its beginning; false when no program takes it.
    virtual bool OpenHelp(TextView file, int topic) = 0;
    /// Opens a web address, or a new mail for an address that begins with "mailto:".
    virtual void OpenAddress(TextView address) = 0;
};

struct SettingEntry {
    Text section, key, value;
    bool operator==(const SettingEntry&) const = default;
};

/// The user's settings, kept from one run to the next: texts by section and key. A section may have
/// sub-sections, whose names follow it behind "\". Keys and values hold any characters; case counts.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    /// @throws Failure FileAccess when the store cannot be written
    virtual void SaveSetting(TextView section, TextView key, TextView value) = 0;
    /// The same where there is no value yet, not even one that cannot be read. @throws Failure FileAccess
    virtual void AddSetting(TextView section, TextView key, TextView value) = 0;
    /// The value, or `fallback` where there is none. @throws Failure FileAccess
    virtual Text GetSetting(TextView section, TextView key, TextView fallback) = 0;
    using Pairs = std::vector<std::pair<Text, Text>>;
    /// Keys and values of a section, in any order, without its sub-sections. @throws Failure FileAccess
    virtual Pairs GetAllSettings(TextView section) = 0;
    /// Removes a key, or a section with its sub-sections, if it is there. @throws Failure FileAccess
    virtual void DeleteSetting(TextView section, TextView key) = 0;
    virtual void DeleteSetting(TextView section) = 0;
    /// Runs `writes` and keeps all that it writes, or nothing: when it throws, when a write failed, and when
    /// the program ends in the middle, the former settings stay whole. @throws Failure FileAccess
    virtual void Together(const std::function<void()>& writes) = 0;
    /// All that is stored, in the order of sections and keys. @throws Failure FileAccess
    virtual std::vector<SettingEntry> Everything() = 0;
    /// What to tell the user about the state in which the store was found, empty when all is well.
    virtual Text Notice() = 0;
};

/// Files of the web.
class Network {
  public:
    virtual ~Network() = default;
    /// Fetches a file to a local one. What is not found, or cannot be reached, leaves the local file as it
    /// is; Escape ends the wait. @throws Failure when nothing can be fetched at all
    virtual void Download(TextView address, TextView localFile) = 0;
};

struct MailMessage {
    Text recipient, address, subject, body;
    std::vector<Text> attachments;
};

/// The mail program of the user.
class Mail {
  public:
    virtual ~Mail() = default;
    /// Shows the message to the user, who sends it. Where there is no mail program, writes it as a draft into
    /// the file `draft`, and tells so by true. @throws Failure FileAccess
    virtual bool Compose(const MailMessage& message, TextView draft) = 0;
};

/// Told after the status panels or the progress have changed; must be cheap.
class StatusObserver {
  public:
    virtual ~StatusObserver() = default;
    virtual void StatusChanged() = 0;
};

/// All that the application asks of its surroundings.
struct Ports {
    Dialogs& dialogs;
    Clock& clock;
    EventPump& events;
    Files& files;
    Folders& folders;
    StatusObserver& status;
    Machine& machine;
    Clipboard& clipboard;
    Keyboard& keyboard;
    Desktop& desktop;
    SettingsStore& settings;
    /// The sheet that the preview shows.
    DrawingDevice& preview;
    Network& network;
    Mail& mail;
};

/// The desktop of a program without a window: there is none.
struct NoDesktop : Clipboard, Keyboard, Desktop, Network, Mail {
    void SetText(TextView) override {}
    bool IsShiftDown() override { return false; }
    OpenResult Open(TextView, int&) override { return OpenResult::NoProgram; }
    bool ChooseProgram(TextView) override { return false; }
    bool OpenHelp(TextView, int) override { return false; }
    void OpenAddress(TextView) override {}
    void Download(TextView, TextView) override {}
    bool Compose(const MailMessage&, TextView) override { return true; }
};

/// The settings of a program that keeps none: every run begins with the defaults.
struct NoSettings : SettingsStore {
    void SaveSetting(TextView, TextView, TextView) override {}
    void AddSetting(TextView, TextView, TextView) override {}
    Text GetSetting(TextView, TextView, TextView fallback) override { return Text(fallback); }
    Pairs GetAllSettings(TextView) override { return {}; }
    void DeleteSetting(TextView, TextView) override {}
    void DeleteSetting(TextView) override {}
    void Together(const std::function<void()>& writes) override { writes(); }
    std::vector<SettingEntry> Everything() override { return {}; }
    Text Notice() override { return {}; }
};

}  // namespace swiftroll
