#include "drawing_files/pdf_file.h"

namespace swiftroll::modDrawingFiles {
namespace {

/// From so many pieces on, the drawings so far are laid out and forgotten: thousands of paths would take
/// gigabytes until their end.
constexpr std::size_t kMostKept = 5'000;

}  // namespace

PdfFile::PdfFile(Files& files, TextView name, modPreview::SheetLayout layout, DocumentFacts facts)
    : files_(files), name_(name), layout_(layout), facts_(std::move(facts)) {}

void PdfFile::Open(TextView title, std::int64_t width, std::int64_t height) {
    kept_.Open(title, width, height);
    facts_.title = title;
    file_ = files_.Open(name_, Files::Mode::Write);
    pages_ = std::make_unique<PdfPages>(*file_, facts_);
}

void PdfFile::FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                            std::uint32_t colour) {
    kept_.FillRectangle(left, top, width, height, colour);
}

void PdfFile::DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                       std::uint32_t colour) {
    kept_.DrawLine(x1, y1, x2, y2, colour);
}

void PdfFile::PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                         const std::vector<PrintedText>& texts) {
    kept_.PrintTexts(left, top, width, height, texts);
}

void PdfFile::EndDrawing(std::int64_t bottom, TextView title) {
    kept_.EndDrawing(bottom, title);
    const bool isOneSheet = layout_.fitToSheet && !layout_.drawingPerSheet;
    if (kept_.Size() >= kMostKept && !isOneSheet) WriteKept();
}

void PdfFile::WriteKept() {
    const modPreview::Paper paper = modPreview::A4Paper(kept_.IsLandscape());
    pages_->Add(modPreview::DrawingSheets(kept_, paper, layout_, pages_->Count() + 1));
    kept_.Forget();
}

void PdfFile::Close() {
    if (kept_.Size() > 0) WriteKept();
    pages_->Finish();
    pages_.reset();
    file_->Close();
}

}  // namespace swiftroll::modDrawingFiles
