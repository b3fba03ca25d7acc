#pragma once

#include <array>

#include "charset/charset.h"

namespace swiftroll::charset {

/// Code points of the bytes from 0x80 on.
using HighHalf = std::array<char32_t, 128>;

/// Those of Windows1252, Latin9, CodePage850 or Macintosh. Where a set has a control there, the character
/// that Windows-1252 has instead: no text holds controls, and many have the wrong one of the names.
HighHalf HighHalfOf(Charset charset);

}  // namespace swiftroll::charset
