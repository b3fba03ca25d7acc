#pragma once

#include "app/ports.h"
#include "app/product.h"
#include "check/check_file.h"

namespace swiftroll::modCheck {

/// "Contrôle de famille.ged : 3 erreurs, 1 avertissement, 12 informations", and that it did not come to its
/// end where that is so.
Text SummaryOf(const Report& report);

/// Writes the findings as an HTML page in UTF-8: how many there are of each rule, and a table for each of
/// them. Closes the file. @throws Failure FileAccess
void WriteReportPage(const Report& report, const Product& product, const Moment& now, File& file);

}  // namespace swiftroll::modCheck
