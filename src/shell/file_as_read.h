#pragma once

#include "gedcom/line_reader.h"

namespace swiftroll {

/// Whether the places of the records in the file that was read still mean something. A file that is gone is
/// none of these: its opening tells.
enum class FileAsRead { Same, Changed, NotReadableAgain };
FileAsRead StateOf(const modReadGedcom::FileRead& read, Files& files);

}  // namespace swiftroll
