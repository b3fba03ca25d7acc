#pragma once

#include "drawing_files/pdf_pages.h"

namespace swiftroll::modDrawingFiles {

/// Drawings on A4 as a PDF file. All members throw Failure FileAccess.
class PdfFile : public DrawingDevice {
  public:
    /// `facts` without the title, which comes with the document.
    PdfFile(Files& files, TextView name, modPreview::SheetLayout layout, DocumentFacts facts);

    void Open(TextView title, std::int64_t width, std::int64_t height) override;
    void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                       std::uint32_t colour) override;
    void DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                  std::uint32_t colour) override;
    void PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                    const std::vector<PrintedText>& texts) override;
    void EndDrawing(std::int64_t bottom, TextView title) override;
    void Close() override;

  private:
    void WriteKept();

    Files& files_;
    Text name_;
    modPreview::SheetLayout layout_;
    DocumentFacts facts_;
    std::unique_ptr<File> file_;
    std::unique_ptr<PdfPages> pages_;
    modPreview::RecordedDrawing kept_;  // what is on no page yet
};

}  // namespace swiftroll::modDrawingFiles
