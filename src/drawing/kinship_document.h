#pragma once

#include "drawing/cell_shape.h"
#include "drawing/cell_texts.h"

namespace swiftroll::modKinshipOutput {

/// The drawings of one command, one below the other: walks their grids, and tells each cell by its class, its
/// text and its place.
class KinshipDocument {
  public:
    KinshipDocument(const DrawingSource& source, TextView sKinshipTitle);
    virtual ~KinshipDocument() = default;

    /// Stage 1 opens the document and writes a drawing, 2 writes a further one, 9 closes the document without
    /// drawing. `sPathTitle` tells what the path of the drawing is. True when a failure was shown to the
    /// user.
    /// @throws Failure when a size option is no number
    bool DisplayKinship(int iStage, const KinshipGrid& grid, TextView sPathTitle = {});

  protected:
    virtual void Begin(const CellSizes& sizes) = 0;
    virtual void WriteCell(TextView sClass, TextView sText, const CellRectangle& place,
                           const CellSizes& sizes) = 0;
    /// `lTop` is where the drawing ends, `lWidth` how wide it is.
    virtual void EndDrawing(std::int64_t lTop, std::int64_t lWidth, TextView sPathTitle) = 0;
    virtual void End(std::int64_t lTop) = 0;
    /// Shows a failure and abandons the document.
    virtual void Fail(const Failure& failure) = 0;
    /// Shows that the file of `cboKinship` could not be written.
    void TellWriteFailure(const Failure& failure);

    DrawingSource source_;
    Text sKinshipTitle_;
    CellFont font_;

  private:
    void WriteDrawing(const KinshipGrid& grid, const CellSizes& sizes, TextView sPathTitle);

    CellTexts texts_;
    std::int64_t lPageTop_ = 10;
};

}  // namespace swiftroll::modKinshipOutput
