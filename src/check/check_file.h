#pragma once

#include "app/application.h"
#include "check/findings.h"
#include "gedcom/line_reader.h"

namespace swiftroll::modCheck {

/// What a check of a file found.
struct Report {
    Text file;
    Findings findings;
    /// Whether it came to its end; otherwise it has what the lines up to there showed.
    bool isComplete = false;
};

/// Checks the file that `lines` read into the tables: one pass over it, and the tables. Lets events in during
/// the pass, and stops on `bAbort` or when another file was read meanwhile.
/// @throws Failure FileNotFound, FileAccess
Report CheckFile(Application& app, const modReadGedcom::LineReader& lines);

}  // namespace swiftroll::modCheck
