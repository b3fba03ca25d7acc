#pragma once

#include "gedcom/links.h"

namespace swiftroll::modReadGedcom {

/// Numbers the islands, the connected components of the links, in `IslandNr` of `lvwIn`, in the order of
/// their first individuals. `colXrefRange` is that of `lvwXref`. Linear in individuals and links. Gives the
/// number of individuals of each island, by its number from 1.
std::vector<std::int32_t> CalcIslands(Application& app, const XrefRanges& colXrefRange);

}  // namespace swiftroll::modReadGedcom
