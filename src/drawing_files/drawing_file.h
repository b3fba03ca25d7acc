#pragma once

#include <span>

#include "drawing_files/pdf_pages.h"

namespace swiftroll::modDrawingFiles {

/// A kind of file that drawings can be written to beside the page of HTML.
struct DrawingFormat {
    TextView name, extension;
    bool hasPages;
    /// Makes the device that writes the file `name`.
    std::unique_ptr<DrawingDevice> (*make)(Files& files, TextView name, modPreview::SheetLayout layout,
                                           DocumentFacts facts);
};

/// All of them, in the order in which they are offered.
std::span<const DrawingFormat> DrawingFormats();
/// That of a file by its extension, whatever its capitals; nullptr for every other name.
const DrawingFormat* FormatOf(TextView file);

}  // namespace swiftroll::modDrawingFiles
