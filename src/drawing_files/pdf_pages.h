#pragma once

#include <exception>
#include <memory>

#include "app/ports.h"
#include "drawing/drawing_sheets.h"
#include "drawing_files/font_shapes.h"

namespace swiftroll::modDrawingFiles {

/// What a document tells of itself.
struct DocumentFacts {
    Text title;
    /// The program, and when it wrote the document.
    Text creator;
    Moment made;
};

/// Sheets of drawings as the pages of a PDF document.
class PdfPages {
  public:
    /// Begins the document in `file`, which outlives this.
    PdfPages(File& file, const DocumentFacts& facts);
    ~PdfPages();
    PdfPages(const PdfPages&) = delete;
    PdfPages& operator=(const PdfPages&) = delete;

    /// Adds all sheets of a drawing. @throws Failure FileAccess
    void Add(const modPreview::DrawingSheets& sheets);
    /// Ends the document. @throws Failure FileAccess
    void Finish();
    /// Number of pages so far.
    int Count() const { return count_; }

  private:
    struct Document;
    void Check();

    std::unique_ptr<Document> document_;
    FontShapes shapes_;
    int count_ = 0;
};

}  // namespace swiftroll::modDrawingFiles
