#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace swiftroll::cli {

/// The exit codes of the program.
enum ExitCode : int { kDone = 0, kFailed = 1, kUsage = 2, kStopped = 3 };

/// A command line that cannot be carried out; the message is French, in UTF-8.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// An option of the record in the order of the command line.
struct Setting {
    enum class Kind { Field, WithoutFamilies, PlacesOrder, Columns };
    Kind kind;
    std::string value;
};

/// A change of the marks of lvwIn after the read, in the order of the command line.
struct MarkStep {
    enum class Kind { Mark, Add, Remove };
    Kind kind;
    /// An identifier for Mark, else the mode of the selection.
    std::string value;
};

/// What every job takes from the command line, texts in UTF-8 as they were typed.
struct Arguments {
    std::string input;
    std::vector<MarkStep> markSteps;
    std::vector<Setting> settings;
    bool strict = false;
    bool overwrite = false;
    /// Whether outputs may be large.
    bool large = false;
    bool quiet = false;
};

}  // namespace swiftroll::cli
