#pragma once

#include <array>

#include "app/ports.h"
#include "charset/ansel.h"
#include "charset/charset.h"

namespace swiftroll::charset {

/// What speaks for one character set or another in a whole file, once its declared name is in doubt.
struct ByteSurvey {
    AnselFit ansel;
    /// Characters beyond ASCII that are whole UTF-8, and bytes that are not.
    std::int64_t utf8 = 0, notUtf8 = 0;
    /// How often each byte from 0x80 on comes: behind a small letter of ASCII, and elsewhere.
    std::array<std::array<std::int64_t, 128>, 2> counts{};

    /// The most plausible of Windows-1252, code page 850 and Macintosh: the one in which the bytes are the
    /// most accented letters.
    Charset MostPlausible() const;
};

/// @throws Failure FileAccess when the file cannot be read out of order
ByteSurvey SurveyBytes(File& file);

}  // namespace swiftroll::charset
