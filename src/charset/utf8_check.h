#pragma once

#include "app/ports.h"

namespace swiftroll::charset {

/// What the bytes of a file can be.
enum class Utf8Answer { Ascii, Utf8, Neither };

/// Looks through a file up to its first byte that is no UTF-8. A character that a line end and the head of a
/// CONC line cut in two counts as whole, since programs that count bytes write it so.
/// @throws Failure FileAccess when the file cannot be read out of order
Utf8Answer CheckUtf8(File& file);

}  // namespace swiftroll::charset
