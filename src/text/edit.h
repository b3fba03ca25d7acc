#pragma once

#include <initializer_list>
#include <vector>

#include "text/text.h"

namespace swiftroll {

/// The text without blanks (code 32 alone) at its left end, its right end, or both.
TextView TrimLeft(TextView text);
TextView TrimRight(TextView text);
TextView Trim(TextView text);

/// The text in capitals of Windows-1252: a-z, à-þ but ÷, œ, š, ž and ÿ have one; ß, µ and ƒ stay.
Text UpperCase(TextView text);
char UpperCase(char c);
/// Whether the texts are equal in capitals.
bool SameButCase(TextView a, TextView b);
/// ASCII letters in lower case; other bytes stay.
Text LowerCaseAscii(TextView text);

/// The parts between the separators, at least one; an empty separator never cuts.
std::vector<TextView> Split(TextView text, TextView separator);

/// Every occurrence of `what`, from the left and without overlap, replaced by `by`; an empty `what` never
/// occurs.
Text ReplaceAll(TextView text, TextView what, TextView by);

/// The texts one behind the other.
Text Concat(std::initializer_list<TextView> pieces);

/// `text` followed by blanks up to `width` characters; a longer text stays whole.
Text PadRight(TextView text, std::size_t width);
/// The last `width` characters of blanks followed by `text`: exactly `width` characters.
Text AlignRight(TextView text, std::size_t width);

/// What stands behind the last "\" or, since paths are the platform's, "/".
TextView FileNamePart(TextView path);

}  // namespace swiftroll
