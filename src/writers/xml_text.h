#pragma once

#include "text/text.h"

namespace swiftroll::modGenFileFromModel {

/// A text without what XML forbids: control codes, and the bytes that Windows-1252 leaves undefined, become
/// "?", and no section of character data ends in it. Markup stays.
Text AllowedInXml(TextView text);

/// A text as the content of an XML element: the same, and no character of it is markup.
Text XmlText(TextView text);

/// The address of a file that stands in the same folder, in characters that need no quoting anywhere.
Text XmlAddress(TextView sFileName);

}  // namespace swiftroll::modGenFileFromModel
