#pragma once

#include "gedcom/links.h"

namespace swiftroll::modReadGedcom {

/// Gives every family its spouses, and a row also to a family that only individuals mention. A failure ends
/// the program after its report.
void XrefFamily(Application& app, Links& links);

/// Writes names and family labels, the links between individuals, and the marriage data of the spouses.
void CopyFamilyXref2Xref(Application& app, Links& links);

}  // namespace swiftroll::modReadGedcom
