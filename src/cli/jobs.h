#pragma once

#include "arguments.h"

namespace swiftroll::cli {

/// One life of the application: reads the file, does the job of the command line, and gives the exit code.
/// @throws UsageError before anything is read or written
int RunJob(const Arguments& arguments);

}  // namespace swiftroll::cli
