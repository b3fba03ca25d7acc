#pragma once

#include <functional>

#include "console.h"
#include "platform/machine.h"
#include "platform/std_files.h"
#include "platform/system_clock.h"
#include "platform/user_folders.h"

namespace swiftroll::cli {

/// The name that means standard output.
inline constexpr TextView kStandardOutput = "-";

/// The files of the machine, and "-" for standard output.
class CliFiles : public platform::StdFiles {
  public:
    std::unique_ptr<File> Open(TextView name, Mode mode) override;
    std::optional<std::uint64_t> RoomFor(TextView name) override {
        return name == kStandardOutput ? std::nullopt : StdFiles::RoomFor(name);
    }
    bool Exists(TextView name) override { return name != kStandardOutput && StdFiles::Exists(name); }
};

/// One life of the application, and what all jobs do with it.
struct Session {
    explicit Session(const Arguments& theArguments);

    /// The tables of these names, for Print; the list is computed with the read when it is one of them.
    /// @throws UsageError
    std::vector<Table*> TablesToPrint(const std::vector<std::string>& names);
    /// Prints a line that tells why the job failed.
    void Refuse(TextView why);
    /// Whether an output may be written: it is none of the files that are read, and new or to be overwritten.
    bool MayWrite(TextView output);
    /// Marks an individual in both ways; false, and it is told, when there is none.
    bool Mark(const std::string& id);
    /// Whether a command that needs the families is enabled; when it is not, this is told, beginning with
    /// `what`: "Un extrait ne peut être écrit".
    bool HasFamiliesFor(const Command& command, TextView what);
    /// Writes an output, or tells that it could not be written.
    void Write(TextView output, const std::function<void(File&)>& write);
    /// Whether the user, or a limit, stopped what ran last.
    bool IsStopped() const;

    const Arguments& arguments;
    HeadlessDialogs dialogs;
    platform::SystemClock clock;
    InterruptPump pump;
    CliFiles files;
    platform::UserFolders folders;
    platform::ThisMachine machine;
    NoDesktop desktop;
    NoSettings settings;
    NoDrawingDevice preview;
    TerminalProgress progress;
    frmMain main;
    bool failed = false;
    bool stopped = false;
};

}  // namespace swiftroll::cli
