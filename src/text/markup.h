#pragma once

#include "text/text.h"

namespace swiftroll {

/// A text as the content or the quoted attribute of an element of HTML or SVG: no character of it is markup,
/// and controls, which no page may hold, are blanks. Takes Windows-1252 and UTF-8 alike.
Text EscapeMarkup(TextView text);

}  // namespace swiftroll
