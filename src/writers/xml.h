#pragma once

#include "app/application.h"

namespace swiftroll::modGenFileFromModel {

/// Element names by position of `lvwOut`, up to `Number`: the captions in comparison form without blanks.
PerPosition<Text> MakeColumnTags(const Application& app);

/// Writes `lvwOut`, all of it or its marked rows, as XML that refers to the stylesheet `sXslName` unless that
/// is empty. A step that fails is skipped and nothing is reported.
/// @return whether every step succeeded
bool WriteXML(Application& app, TextView sOutFile, TextView sXslName, bool bSelectedOnly);

}  // namespace swiftroll::modGenFileFromModel
