#pragma once

#include "drawing/cell_painter.h"
#include "drawing/kinship_document.h"

namespace swiftroll::modPrint {

/// Tells in a box why drawings could not be printed.
void TellPrintFailure(Feedback& feedback, const Failure& failure);

/// The drawings on an A4 sheet, at the places of the page of HTML.
class KinshipPrint : public modKinshipOutput::KinshipDocument {
  public:
    /// `device` is the sheet.
    KinshipPrint(const modKinshipOutput::DrawingSource& source, TextView sKinshipTitle, DrawingDevice& device)
        : KinshipDocument(source, sKinshipTitle), device_(device), painter_(source.options, font_) {}

  protected:
    void Begin(const modKinshipOutput::CellSizes& sizes) override;
    void WriteCell(TextView sClass, TextView sText, const modKinshipOutput::CellRectangle& place,
                   const modKinshipOutput::CellSizes& sizes) override;
    void EndDrawing(std::int64_t lTop, std::int64_t lWidth, TextView sPathTitle) override;
    void End(std::int64_t lTop) override;
    void Fail(const Failure& failure) override;

  private:
    DrawingDevice& device_;
    CellPainter painter_;
};

/// The same in the file of `cboKinship`, which the device writes.
class KinshipFile : public KinshipPrint {
  public:
    KinshipFile(const modKinshipOutput::DrawingSource& source, TextView sKinshipTitle,
                std::unique_ptr<DrawingDevice> device)
        : KinshipPrint(source, sKinshipTitle, *device), file_(std::move(device)) {}

  protected:
    void Fail(const Failure& failure) override { TellWriteFailure(failure); }

  private:
    std::unique_ptr<DrawingDevice> file_;
};

}  // namespace swiftroll::modPrint
