#include "charset/charset.h"

#include "text/literal.h"

namespace swiftroll::charset {
namespace {

struct NamedCharset {
    TextView name;  // capitals and digits only
    Charset charset;
};

// LATIN1 stands here as Windows-1252, of which it is a part: what else its bytes say are controls.
constexpr NamedCharset kNames[] = {{"ANSI", Charset::Windows1252},
                                   {"ASCII", Charset::Windows1252},
                                   {"IBMWINDOWS", Charset::Windows1252},
                                   {"WINDOWS1252", Charset::Windows1252},
                                   {"CP1252", Charset::Windows1252},
                                   {"LATIN1", Charset::Windows1252},
                                   {"ISO88591", Charset::Windows1252},
                                   {"ISO885915", Charset::Latin9},
                                   {"LATIN9", Charset::Latin9},
                                   {"IBMPC", Charset::CodePage850},
                                   {"IBMDOS", Charset::CodePage850},
                                   {"OEM", Charset::CodePage850},
                                   {"MSDOS", Charset::CodePage850},
                                   {"CP850", Charset::CodePage850},
                                   {"MACINTOSH", Charset::Macintosh},
                                   {"ANSEL", Charset::Ansel},
                                   {"UTF8", Charset::Utf8}};

/// Capitals and digits of a name.
Text Simplified(TextView name) {
    Text simplified;
    for (const char c : name) {
        const bool isSmall = c >= 'a' && c <= 'z';
        if (isSmall || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))
            simplified += isSmall ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return simplified;
}

}  // namespace

TextView NameOf(Charset charset) {
    switch (charset) {
        case Charset::Ascii:
            return "ASCII";
        case Charset::Windows1252:
            return "ANSI (Windows-1252)";
        case Charset::Latin9:
            return "ISO-8859-15";
        case Charset::CodePage850:
            return "MS-DOS (page de code 850)";
        case Charset::Macintosh:
            return "Macintosh";
        case Charset::Ansel:
            return "ANSEL";
        case Charset::Utf8:
            return "UTF-8";
        case Charset::Utf16LittleEndian:
            return "UTF-16 (octet faible en tête)"_t;
        case Charset::Utf16BigEndian:
            return "UTF-16 (octet fort en tête)"_t;
    }
    return {};
}

std::optional<Charset> CharsetOfName(TextView declared) {
    const Text name = Simplified(declared);
    for (const auto& [known, charset] : kNames) {
        if (name == known) return charset;
    }
    return std::nullopt;
}

}  // namespace swiftroll::charset
