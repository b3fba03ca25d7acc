#pragma once

#include "text/text.h"

namespace swiftroll::modSaveGed {

/// What a file in UTF-8 may begin with.
inline constexpr TextView kUtf8Mark = "\xEF\xBB\xBF";

/// A HEAD record whose CHAR line declares UTF-8; it gets one at its end when it has none. All other lines
/// stay, and so do line ends. An empty record stays empty.
Text DeclareUtf8(TextView sHead);

}  // namespace swiftroll::modSaveGed
