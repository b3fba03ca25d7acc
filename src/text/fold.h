#pragma once

#include "text/text.h"

namespace swiftroll {

/// Replaces each character by its plain letter, digit or blank (the table `sAlphaNum`: no accents, no
/// punctuation), strips the blanks at both ends and makes one blank of several.
Text FoldAccents(TextView text);

/// The comparison form of group keys and sorts: `FoldAccents` in capitals. Equal forms mean "the same" to a
/// genealogist. Appends it to `out`.
void AppendComparisonForm(Text& out, TextView text);
Text ComparisonForm(TextView text);
/// Whether the comparison form of `text` contains a word: a comparison form without blanks. No form is made.
bool FoldedContains(TextView text, TextView word);
/// Whether it begins with the word, blanks apart.
bool FoldedStartsWith(TextView text, TextView word);

}  // namespace swiftroll
