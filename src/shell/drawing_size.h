#pragma once

#include <functional>

#include "app/application.h"
#include "drawing/drawing_source.h"

namespace swiftroll {

/// Writes the drawings that begin at some rows of `lvwKinship` into a file of `files`.
using WriteDrawings = std::function<void(const modKinshipOutput::DrawingSource& source, Files& files,
                                         const std::vector<std::int32_t>& rows)>;

/// About how many bytes the file takes that draws the paths which begin at these rows of `lvwKinship`. Has
/// some of them written into nothing; failures tell nobody, since the drawing itself will. 0 for what is
/// small anyhow.
std::uint64_t EstimateDrawings(Application& app, const std::vector<std::int32_t>& rows,
                               const WriteDrawings& write);

}  // namespace swiftroll
