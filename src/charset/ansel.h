#pragma once

#include <cstdint>
#include <string>

#include "text/text.h"

namespace swiftroll::charset {

/// A text in ANSEL, as GEDCOM has it, as code points. Marks, which stand before their letter in ANSEL, stand
/// behind it, and those without one at the end, whose letter a CONC line holds, vanish; bytes that ANSEL
/// leaves undefined become U+FFFD.
void DecodeAnsel(TextView text, std::u32string& codePoints);

/// How many bytes of a text are right and wrong in ANSEL: a mark is right before a letter that it can change,
/// and the halves of a joining mark before the two letters that they join; an undefined byte is wrong. Other
/// characters say nothing.
struct AnselFit {
    std::int64_t right = 0, wrong = 0;
    /// A text of another character set has many marks before blanks and letters that never bear them. One of
    /// ANSEL may have a few slips.
    bool IsPlausible() const { return wrong * 20 <= right + wrong; }
};

/// Judges the byte at `at`, which is beyond ASCII, and gives the number of bytes that this took. Bytes behind
/// the text count as blanks.
std::size_t JudgeAnsel(TextView text, std::size_t at, AnselFit& fit);

}  // namespace swiftroll::charset
