#pragma once

#include "text/text.h"

namespace swiftroll::modCommon {

/// The name with what stands from its last "." on replaced by "." and `sExt`; a name without "." gets them
/// behind it. Dots of the folders do not count.
Text ChangeExtension(TextView sFile, TextView sExt);

}  // namespace swiftroll::modCommon
