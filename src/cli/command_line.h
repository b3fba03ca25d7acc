#pragma once

#include <string>

#include "arguments.h"
#include "job.h"

namespace swiftroll::cli {

/// What the command line asks for.
struct Request {
    enum class Kind { Help, Version, Job };
    Kind kind = Kind::Help;
    /// One of the jobs that were offered, with its options.
    Job* job = nullptr;
    Arguments arguments;
};

/// Understands a command line for one of these jobs. @throws UsageError
Request ParseCommandLine(int argc, const char* const* argv, const Jobs& jobs);

/// What --aide prints, in UTF-8.
std::string HelpText(const Jobs& jobs);

}  // namespace swiftroll::cli
