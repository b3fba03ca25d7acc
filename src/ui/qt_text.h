#pragma once

#include <QString>

#include "text/text.h"

namespace swiftroll::ui {

/// A text of the core for the screen, character by character.
QString ToQt(TextView text);
/// A text that stands for the name of a file, or that the user edits: characters that the code page lacks
/// come back as they were typed.
QString EditableToQt(TextView text);
/// What the user typed. A character that the code page lacks is kept in the reversible form of file names.
Text FromQt(const QString& text);

}  // namespace swiftroll::ui
