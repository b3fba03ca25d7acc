#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <memory>
#include <string>

#include "text/text.h"

namespace swiftroll::charset {

/// Writes characters that Windows-1252 has not by those that it has: Cyrillic and Greek as the BGN does,
/// other scripts as ICU does, Latin letters without what Windows-1252 lacks of them. What has no letter
/// becomes
/// "?", marks that stand alone vanish.
class Transliteration {
  public:
    Transliteration();
    ~Transliteration();
    Transliteration(const Transliteration&) = delete;
    Transliteration& operator=(const Transliteration&) = delete;

    /// Appends `text`, composed, as Windows-1252. Gives the number of characters that were transliterated.
    std::int64_t Append(std::u32string_view text, Text& out);

  private:
    /// A character by its neighbours: "Е" is "Ye" at the head of a word and "e" behind a consonant, "Ю" is
    /// "Yu" before a small letter. A neighbour that is no letter, or that no rule looks at, is 0.
    const Text& Of(char32_t before, char32_t character, char32_t behind);
    Text Make(char32_t before, char32_t character, char32_t behind);

    struct Rules;
    std::unique_ptr<Rules> rules_;                           // made when the first character needs them
    boost::unordered_flat_map<std::u32string, Text> known_;  // by the three characters
};

}  // namespace swiftroll::charset
