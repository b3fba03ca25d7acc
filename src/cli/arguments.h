#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace swiftroll::cli {

enum class JobKind { Help, Version, Tables, Releve, Parente, Extrait };

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

/// The command line, texts in UTF-8 as they were typed.
struct Arguments {
    JobKind job = JobKind::Help;
    std::string input;
    std::string output;
    std::vector<std::string> tables;
    bool withKeys = false;
    std::string format;
    std::string model;
    bool withStylesheet = false;
    bool markedOnly = false;
    std::vector<MarkStep> markSteps;
    std::string fromId, toId;
    /// Number of paths, and seconds, after which the search ends; 0 for no limit.
    std::int64_t mostPaths = 0;
    double mostSeconds = 0;
    /// The page of drawings, empty for none; the place of the mode in the list of the command, and the rows
    /// to draw.
    std::string drawing;
    int drawingMode = 3;
    std::vector<std::string> drawnRows;
    std::vector<Setting> settings;
    bool strict = false;
    bool overwrite = false;
    bool quiet = false;
};

/// @throws UsageError
Arguments ParseArguments(int argc, const char* const* argv);

/// What --aide prints, in UTF-8.
std::string HelpText();

}  // namespace swiftroll::cli
