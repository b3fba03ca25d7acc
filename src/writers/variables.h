#pragma once

#include <utility>
#include <vector>

#include "app/ports.h"
#include "app/product.h"

namespace swiftroll::modGenFileFromModel {

/// The GEDCOM file that the list comes from.
struct ListOrigin {
    Text sGedcom;  // the name of the file
    std::int32_t lNrNames = 0, lNrLines = 0;
};

/// The values of the document variables (%SWIFTROLL%, %INDIVIDUALS%, %DATE_LONG%, ...) at one moment.
class DocumentVariables {
  public:
    DocumentVariables(const Product& product, const ListOrigin& origin, const Moment& now);
    /// `sText` with every variable replaced, exact in case.
    Text Replace(TextView sText) const;

  private:
    std::vector<std::pair<TextView, Text>> values_;
};

/// Writes a text with its variables replaced, and no line end (`PrintWithOtherTags`).
void PrintWithOtherTags(File& iFile, TextView sText, const DocumentVariables& variables);

}  // namespace swiftroll::modGenFileFromModel
