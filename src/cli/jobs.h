#pragma once

#include "job.h"

namespace swiftroll::cli {

/// All jobs of the program.
Jobs AllJobs();

}  // namespace swiftroll::cli
