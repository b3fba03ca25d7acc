#pragma once

#include <cstdint>
#include <optional>

#include "text/text.h"

namespace swiftroll::charset {

/// The character sets that a GEDCOM file can be in.
enum class Charset {
    Ascii,  // also of a text that was never looked at, since none of its values goes beyond ASCII
    Windows1252,
    Latin9,
    CodePage850,
    Macintosh,
    Ansel,
    Utf8,
    Utf16LittleEndian,
    Utf16BigEndian
};

/// The name of a character set, for the user.
TextView NameOf(Charset charset);

/// The character set that the value of a CHAR line declares, whatever its capitals, blanks and signs; nothing
/// for a name that tells none, such as "UNICODE", which only the bytes of a file can bear out.
std::optional<Charset> CharsetOfName(TextView declared);

/// What a character set was told by.
enum class ToldBy {
    Nothing,  // no value needed it
    Mark,     // the byte order mark
    Bytes,    // the bytes allow one answer only
    Name,     // the name that the file declares
    Guess,    // the most plausible of several, since the declared name does not go with the bytes
    Unknown   // it cannot be told: the bytes are taken as Windows-1252
};

/// The character set of a file.
struct FoundCharset {
    Charset charset = Charset::Ascii;
    ToldBy toldBy = ToldBy::Nothing;
    /// The value of the first CHAR line, as it stands; nothing when there is none.
    std::optional<Text> declared = {};
    /// Number of characters of the values read that Windows-1252 has not.
    std::int64_t transliterated = 0;

    bool IsUtf16() const {
        return charset == Charset::Utf16LittleEndian || charset == Charset::Utf16BigEndian;
    }
};

}  // namespace swiftroll::charset
