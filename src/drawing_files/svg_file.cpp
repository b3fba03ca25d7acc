#include "drawing_files/svg_file.h"

#include <cmath>

#include "drawing/cell_texts.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/markup.h"
#include "text/numbers.h"

namespace swiftroll::modDrawingFiles {
namespace {

using modKinshipOutput::Long2Color;

constexpr std::int64_t kTwipsPerPixel = 15;
constexpr std::int64_t kMargin = 150;  // beyond the drawings, as before them

/// A text as UTF-8 that the file may hold.
std::string Escaped(TextView text) { return EscapeMarkup(ToUtf8(text)); }

Text Rounded(double number) { return Decimal(std::llround(number)); }

}  // namespace

void SvgFile::Open(TextView title, std::int64_t, std::int64_t) {
    title_ = title;
    file_ = files_.Open(name_, Files::Mode::Write);
}

void SvgFile::Reach(std::int64_t right, std::int64_t bottom) {
    right_ = std::max(right_, right);
    bottom_ = std::max(bottom_, bottom);
}

void SvgFile::FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                            std::uint32_t colour) {
    drawing_ += Concat({"<rect x=\"", Decimal(left), "\" y=\"", Decimal(top), "\" width=\"", Decimal(width),
                        "\" height=\"", Decimal(height), "\" fill=\"", Long2Color(colour), "\"/>\n"});
    Reach(left + width, top + height);
}

void SvgFile::DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                       std::uint32_t colour) {
    drawing_ += Concat({"<path d=\"M", Decimal(x1), " ", Decimal(y1), "L", Decimal(x2), " ", Decimal(y2),
                        "\" stroke=\"", Long2Color(colour), "\"/>\n"});
    Reach(std::max(x1, x2), std::max(y1, y2));
}

void SvgFile::PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                         const std::vector<PrintedText>& texts) {
    const modPreview::Area box{static_cast<double>(left), static_cast<double>(top),
                               static_cast<double>(left + width), static_cast<double>(top + height)};
    const auto shapeOf = [this](const CellFont& font) -> const modPreview::FontShape& {
        return shapes_.Of(font);
    };
    for (const modPreview::PlacedLine& line : FitTexts(box, texts, shapeOf)) WriteLine(line);
    Reach(left + width, top + height);
}

/// With its width, which keeps it within its box where another font stands in for this one.
void SvgFile::WriteLine(const modPreview::PlacedLine& line) {
    drawing_ += Concat({"<text x=\"", Rounded(line.x), "\" y=\"", Rounded(line.baseline), "\" font-size=\"",
                        Rounded(line.size), "\" textLength=\"", Rounded(line.width),
                        "\" lengthAdjust=\"spacingAndGlyphs\" font-family=\"'"});
    drawing_ += Escaped(ReplaceAll(line.font->name, "'", ""));
    drawing_ += Concat({"', sans-serif\"", line.font->bold ? " font-weight=\"bold\"" : "",
                        line.font->italic ? " font-style=\"italic\"" : "",
                        line.font->underline ? " text-decoration=\"underline\"" : "", " fill=\"",
                        Long2Color(line.font->colour), "\">"});
    drawing_ += Escaped(line.text);
    drawing_ += "</text>\n";
}

void SvgFile::EndDrawing(std::int64_t, TextView title) {
    drawings_ += "<g>\n<title>" + Escaped(title) + "</title>\n" + drawing_ + "</g>\n";
    drawing_.clear();
}

void SvgFile::Close() {
    const Text width = Decimal(right_ + kMargin), height = Decimal(bottom_ + kMargin);
    file_->Write(Concat({"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n",
                         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"",
                         Decimal((right_ + kMargin) / kTwipsPerPixel), "\" height=\"",
                         Decimal((bottom_ + kMargin) / kTwipsPerPixel), "\" viewBox=\"0 0 ", width, " ",
                         height, "\" xml:space=\"preserve\">\n<title>", Escaped(title_),
                         "</title>\n<rect width=\"", width, "\" height=\"", height,
                         "\" fill=\"#FFFFFF\"/>\n<g stroke-width=\"15\" stroke-linecap=\"square\">\n"}));
    file_->Write(drawings_);
    file_->Write(Concat({drawing_, "</g>\n</svg>\n"}));
    file_->Close();
    drawings_.clear();
    drawing_.clear();
}

}  // namespace swiftroll::modDrawingFiles
