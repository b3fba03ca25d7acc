#pragma once

#include <utility>
#include <vector>

#include "app/application.h"
#include "gedcom/line_reader.h"

namespace swiftroll::modGenFileFromModel {

/// The values of the document variables (%SWIFTROLL%, %INDIVIDUALS%, %DATE_LONG%, ...) at one moment.
class DocumentVariables {
  public:
    DocumentVariables(const Application& app, const modReadGedcom::LineReader& lines);
    /// `sText` with every variable replaced, exact in case.
    Text Replace(TextView sText) const;

  private:
    std::vector<std::pair<TextView, Text>> values_;
};

/// Writes a text with its variables replaced, and no line end (`PrintWithOtherTags`).
void PrintWithOtherTags(File& iFile, TextView sText, const DocumentVariables& variables);

}  // namespace swiftroll::modGenFileFromModel
