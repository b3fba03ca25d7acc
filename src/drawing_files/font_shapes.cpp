#include "drawing_files/font_shapes.h"

#include <cairo.h>

#include <memory>

#include "drawing_files/cairo_font.h"
#include "text/code_page.h"

namespace swiftroll::modDrawingFiles {
namespace {

/// Measured at this size, since small sizes are rounded.
constexpr double kMeasuredSize = 1000;

modPreview::FontShape Measure(const CellFont& font) {
    cairo_matrix_t size, identity;
    cairo_matrix_init_scale(&size, kMeasuredSize, kMeasuredSize);
    cairo_matrix_init_identity(&identity);
    const std::unique_ptr<cairo_font_options_t, decltype(&cairo_font_options_destroy)> options(
        cairo_font_options_create(), cairo_font_options_destroy);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    const FontFace face = FaceOf(font);
    const std::unique_ptr<cairo_scaled_font_t, decltype(&cairo_scaled_font_destroy)> scaled(
        cairo_scaled_font_create(face.get(), &size, &identity, options.get()), cairo_scaled_font_destroy);
    cairo_font_extents_t line{};
    cairo_scaled_font_extents(scaled.get(), &line);
    modPreview::FontShape shape;
    shape.ascent = line.ascent / kMeasuredSize;
    shape.descent = line.descent / kMeasuredSize;
    for (std::size_t c = 1; c < shape.advances.size(); ++c) {
        const char character = static_cast<char>(c);
        cairo_text_extents_t extents{};
        cairo_scaled_font_text_extents(scaled.get(), ToUtf8(TextView(&character, 1)).c_str(), &extents);
        shape.advances[c] = extents.x_advance / kMeasuredSize;
    }
    return shape;
}

}  // namespace

const modPreview::FontShape& FontShapes::Of(const CellFont& font) {
    const auto [place, isNew] = shapes_.try_emplace({font.name, font.bold, font.italic});
    if (isNew) place->second = Measure(font);
    return place->second;
}

}  // namespace swiftroll::modDrawingFiles
