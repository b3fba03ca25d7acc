#pragma once

#include "arguments.h"
#include "job.h"

namespace swiftroll::cli {

/// One life of the application: reads the file, does the job, and gives the exit code.
/// @throws UsageError before anything is read or written
int RunJob(Job& job, const Arguments& arguments);

}  // namespace swiftroll::cli
