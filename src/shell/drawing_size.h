#pragma once

#include <span>

#include "app/application.h"

namespace swiftroll {

/// About how many bytes the page takes that draws the paths which begin at these rows of `lvwKinship`, which
/// stands in the order of `SeqNr`. Draws some of them into nothing; failures tell nobody, since the drawing
/// itself will. 0 for what is small anyhow.
std::uint64_t EstimateDrawings(Application& app, TextView sKinshipTitle, std::span<const std::int32_t> rows,
                               bool bSpouses);

}  // namespace swiftroll
