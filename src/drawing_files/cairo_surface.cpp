#include "drawing_files/cairo_surface.h"

namespace swiftroll::modDrawingFiles {
namespace {

constexpr double kPointsPerTwip = 1.0 / 20;
constexpr double kLineWidth = 15;  // a pixel of the screen
/// Where an underline runs and how thick it is, in parts of the size of the font.
constexpr double kUnderlineDepth = 0.11, kUnderlineWidth = 0.06;

double Part(std::uint32_t colour, int shift) { return static_cast<double>(colour >> shift & 0xFF) / 255; }

}  // namespace

CairoSurface::CairoSurface(cairo_t& context, FontShapes& shapes, FontFaces& faces)
    : context_(context), shapes_(shapes), faces_(faces) {
    cairo_scale(&context_, kPointsPerTwip, kPointsPerTwip);
}

void CairoSurface::SetColour(std::uint32_t colour) {
    cairo_set_source_rgb(&context_, Part(colour, 0), Part(colour, 8), Part(colour, 16));
}

void CairoSurface::FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                                 std::uint32_t colour) {
    SetColour(colour);
    cairo_rectangle(&context_, static_cast<double>(left), static_cast<double>(top),
                    static_cast<double>(width), static_cast<double>(height));
    cairo_fill(&context_);
}

void CairoSurface::DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                            std::uint32_t colour) {
    SetColour(colour);
    cairo_set_line_width(&context_, kLineWidth);
    cairo_set_line_cap(&context_, CAIRO_LINE_CAP_SQUARE);
    cairo_move_to(&context_, static_cast<double>(x1), static_cast<double>(y1));
    cairo_line_to(&context_, static_cast<double>(x2), static_cast<double>(y2));
    cairo_stroke(&context_);
}

void CairoSurface::PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                              const std::vector<PrintedText>& texts) {
    const modPreview::Area box{static_cast<double>(left), static_cast<double>(top),
                               static_cast<double>(left + width), static_cast<double>(top + height)};
    const auto shapeOf = [this](const CellFont& font) -> const modPreview::FontShape& {
        return shapes_.Of(font);
    };
    for (const modPreview::PlacedLine& line : FitTexts(box, texts, shapeOf)) {
        SetColour(line.font->colour);
        cairo_set_font_face(&context_, faces_.Of(*line.font));
        cairo_set_font_size(&context_, line.size);
        cairo_move_to(&context_, line.x, line.baseline);
        cairo_show_text(&context_, ToUtf8(line.text).c_str());
        if (!line.font->underline) continue;
        cairo_rectangle(&context_, line.x, line.baseline + kUnderlineDepth * line.size, line.width,
                        kUnderlineWidth * line.size);
        cairo_fill(&context_);
    }
}

void CairoSurface::ShowPart(double x, double y, double scale, const modPreview::Area& area,
                            const std::function<void()>& draw) {
    cairo_save(&context_);
    cairo_translate(&context_, x, y);
    cairo_scale(&context_, scale, scale);
    // Lines are drawn to both sides of their place.
    cairo_rectangle(&context_, area.left - kLineWidth, area.top - kLineWidth, area.Width() + 2 * kLineWidth,
                    area.Height() + 2 * kLineWidth);
    cairo_clip(&context_);
    draw();
    cairo_restore(&context_);
}

}  // namespace swiftroll::modDrawingFiles
