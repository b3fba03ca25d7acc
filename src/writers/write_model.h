#pragma once

#include "writers/output_format.h"

namespace swiftroll::modGenFileFromModel {

/// Writes `lvwOut`, all of it or its marked rows, through the model of a format, which has one, or for XSL
/// the stylesheet that goes with an XML file. The format's `sEmptyCell` stands for an empty cell and behind
/// each link of the index. When the model cannot be cut nothing is touched. Failures are told in a box while
/// the file is opened and its head written, and reported later; what was written by then stays. False then,
/// and for a model that cannot be cut.
bool WriteFileFromModel(const ListSource& source, const OutputFormat& format, TextView sOutFile,
                        TextView sModelFile, bool bSelectedOnly);

}  // namespace swiftroll::modGenFileFromModel
