#pragma once

#include <map>
#include <tuple>

#include "drawing/text_fit.h"

namespace swiftroll::modDrawingFiles {

/// The shapes of the fonts of the machine. A font that it lacks has that of the one that stands in for it.
class FontShapes {
  public:
    const modPreview::FontShape& Of(const CellFont& font);

  private:
    std::map<std::tuple<Text, bool, bool>, modPreview::FontShape> shapes_;  // by name, bold, italic
};

}  // namespace swiftroll::modDrawingFiles
