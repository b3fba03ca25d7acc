#pragma once

#include <cstdint>
#include <optional>

#include "text/failure.h"
#include "text/text.h"

namespace swiftroll::modReadGedcom {

/// A line of a GEDCOM file and its parts. All views are of the text that `sLine` was given.
struct GedcomLine {
    std::int16_t iLevel = 0;
    /// Whether the level has one digit, the only ones that a reader takes.
    bool hasOneDigit = true;
    TextView sXrefDef;
    TextView sTag;
    /// All that follows the tag and one blank, unchanged.
    TextView sValue;
    /// The line without its end and its leading blanks. While it is split, what is left of it, for reports.
    TextView sLine;

    /// Splits `sLine` into the other fields. Junk before the level, such as a byte order mark, is removed as
    /// long as no blank stands in it. Gives what is wrong with a line that does not begin with a level.
    std::optional<FailureKind> Split();

  private:
    void TakeFields(TextView rest);
};

/// The cross-reference at the head of `sText`, both "@" included, or all of it when the second "@" is
/// missing; empty when the text does not begin with "@".
TextView GetXrefDef(TextView sText);
/// The trimmed text when it both starts and ends with "@", else the empty text.
TextView GetXrefUsed(TextView sText);

}  // namespace swiftroll::modReadGedcom
