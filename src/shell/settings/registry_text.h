#pragma once

#include "app/ports.h"

namespace swiftroll::modCommon {

/// Settings as a text that registry editors read: a line "[root\section]" for every section, and a line
/// "key"="value" for every pair. The entries stand in the order of their sections.
Text RegistryText(TextView sRoot, const std::vector<SettingEntry>& entries);

}  // namespace swiftroll::modCommon
