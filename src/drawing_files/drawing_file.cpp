#include "drawing_files/drawing_file.h"

#include "drawing_files/pdf_file.h"
#include "drawing_files/svg_file.h"
#include "text/edit.h"

namespace swiftroll::modDrawingFiles {
namespace {

using Device = std::unique_ptr<DrawingDevice>;

Device MakePdf(Files& files, TextView name, modPreview::SheetLayout layout, DocumentFacts facts) {
    return std::make_unique<PdfFile>(files, name, layout, std::move(facts));
}

Device MakeSvg(Files& files, TextView name, modPreview::SheetLayout, DocumentFacts) {
    return std::make_unique<SvgFile>(files, name);
}

constexpr DrawingFormat kFormats[] = {{"PDF", "pdf", true, MakePdf}, {"SVG", "svg", false, MakeSvg}};

}  // namespace

std::span<const DrawingFormat> DrawingFormats() { return kFormats; }

const DrawingFormat* FormatOf(TextView file) {
    const TextView name = FileNamePart(file);
    const std::size_t point = name.rfind('.');
    if (point == TextView::npos) return nullptr;
    for (const DrawingFormat& format : kFormats) {
        if (SameButCase(name.substr(point + 1), format.extension)) return &format;
    }
    return nullptr;
}

}  // namespace swiftroll::modDrawingFiles
