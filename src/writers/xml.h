#pragma once

#include "writers/list_source.h"

namespace swiftroll::modGenFileFromModel {

/// Element names by position of `lvwOut`, up to `Number`: the captions in comparison form without blanks.
PerPosition<Text> MakeColumnTags(const ArrangedTables& tables);

/// Writes `lvwOut`, all of it or its marked rows, as XML that refers to the stylesheet `sXslName` unless that
/// is empty. With `chkStrictXml` it is well formed whatever the cells hold; else they stand as they are. A
/// step that fails is skipped and nothing is reported.
/// @return whether every step succeeded
bool WriteXML(const ListSource& source, TextView sOutFile, TextView sXslName, bool bSelectedOnly);

}  // namespace swiftroll::modGenFileFromModel
