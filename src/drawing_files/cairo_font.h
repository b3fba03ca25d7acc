#pragma once

#include <cairo.h>

#include <memory>

#include "app/cell_font.h"
#include "text/code_page.h"

namespace swiftroll::modDrawingFiles {

using FontFace = std::unique_ptr<cairo_font_face_t, decltype(&cairo_font_face_destroy)>;

/// A font as the library of the files knows it.
inline FontFace FaceOf(const CellFont& font) {
    return {cairo_toy_font_face_create(ToUtf8(font.name).c_str(),
                                       font.italic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                                       font.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL),
            cairo_font_face_destroy};
}

}  // namespace swiftroll::modDrawingFiles
