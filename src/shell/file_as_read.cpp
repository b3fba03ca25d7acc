#include "shell/file_as_read.h"

namespace swiftroll {

FileAsRead StateOf(const modReadGedcom::FileRead& read, Files& files) {
    if (!read.stamp) return FileAsRead::NotReadableAgain;
    const auto present = files.Stamp(read.sFile);
    return present && *present != *read.stamp ? FileAsRead::Changed : FileAsRead::Same;
}

}  // namespace swiftroll
