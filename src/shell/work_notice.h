#pragma once

#include <vector>

#include "shell/file_combos.h"

namespace swiftroll {

// What the message bar says of a work that has come to an end: all its texts stand here, and those who work
// give the counts.

/// A count with its word: "1 204 lignes".
Text Counted(std::int64_t count, TextView singular, TextView plural);

/// Tells that a work is at its end, and what it made: "Liste calculée: 1 204 lignes". What was stopped is
/// told until the user does something else.
void TellEnd(Application& app, TextView what, const std::vector<Text>& made, bool isWhole = true);

/// Tells that a file was written: "Relevé écrit: 1 204 lignes, 2,1 Mo", with a button that opens it. What
/// takes no room on a disk has no size.
void TellWritten(Application& app, FileCombos& fileCombos, TextView what, std::vector<Text> made,
                 const Text& sFile);

/// Tells that a set of parameters was saved.
void TellSetSaved(Application& app, TextView sName);

/// Says that the check for versions failed, and offers to repeat it.
void OfferAnotherCheck(Application& app, MessageBar::Owner owner, Event check);

}  // namespace swiftroll
