#include "shell/settings/registry_text.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::modCommon {
namespace {

/// A name or a value between quotes. Line ends would end the line of the pair, so they are written as
/// escapes.
Text Quoted(TextView text) {
    Text escaped = ReplaceAll(ReplaceAll(text, "\\", "\\\\"), "\"", "\\\"");
    escaped = ReplaceAll(ReplaceAll(escaped, "\r", "\\r"), "\n", "\\n");
    return Concat({"\"", escaped, "\""});
}

}  // namespace

Text RegistryText(TextView sRoot, const std::vector<SettingEntry>& entries) {
    Text text = Concat({"REGEDIT4", kLineEnd});
    const Text* section = nullptr;
    for (const SettingEntry& entry : entries) {
        if (section == nullptr || *section != entry.section) {
            section = &entry.section;
            text += Concat({kLineEnd, "[", sRoot, "\\", entry.section, "]", kLineEnd});
        }
        text += Concat({Quoted(entry.key), "=", Quoted(entry.value), kLineEnd});
    }
    return text;
}

}  // namespace swiftroll::modCommon
