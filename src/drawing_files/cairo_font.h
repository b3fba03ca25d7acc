#pragma once

#include <cairo.h>

#include <map>
#include <memory>
#include <tuple>

#include "app/cell_font.h"
#include "text/code_page.h"

namespace swiftroll::modDrawingFiles {

using FontFace = std::unique_ptr<cairo_font_face_t, decltype(&cairo_font_face_destroy)>;

/// A font as the library of the files knows it. It looks for the font on the machine when a new one is used.
inline FontFace FaceOf(const CellFont& font) {
    return {cairo_toy_font_face_create(ToUtf8(font.name).c_str(),
                                       font.italic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                                       font.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL),
            cairo_font_face_destroy};
}

/// The fonts of a document, each looked for once.
class FontFaces {
  public:
    cairo_font_face_t* Of(const CellFont& font) {
        const auto [place, isNew] =
            faces_.try_emplace({font.name, font.bold, font.italic}, nullptr, cairo_font_face_destroy);
        if (isNew) place->second = FaceOf(font);
        return place->second.get();
    }

  private:
    std::map<std::tuple<Text, bool, bool>, FontFace> faces_;  // by name, bold, italic
};

}  // namespace swiftroll::modDrawingFiles
