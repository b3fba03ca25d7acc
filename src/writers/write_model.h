#pragma once

#include "gedcom/line_reader.h"
#include "writers/model.h"

namespace swiftroll::modGenFileFromModel {

/// Writes `lvwOut`, all of it or its marked rows, through a model, or for XSL the stylesheet that goes with
/// an XML file. `sEmptyCell` stands for an empty cell and behind each link of the index. When the model
/// cannot be cut nothing is touched. Failures are told in a box while the file is opened and its head
/// written, and reported later; what was written by then stays.
void WriteFileFromModel(Application& app, const modReadGedcom::LineReader& lines, TextView sOutFile,
                        TextView sModelFile, OutFormat iOutFormat, bool bSelectedOnly, TextView sEmptyCell);

}  // namespace swiftroll::modGenFileFromModel
