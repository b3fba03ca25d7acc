#pragma once

#include "update/update_tree.h"

namespace swiftroll {

/// Takes the colour mark off the head of a comment line and gives the rest; `look` gets the colours.
TextView AddColor(TextView sText, NodeLook& look);

/// Turns the stars at the head of a line into blanks.
Text TabString(TextView sText);

}  // namespace swiftroll
