#pragma once

#include "drawing/cell_shape.h"
#include "drawing/cell_texts.h"

namespace swiftroll::modKinshipOutput {

/// The page of drawings of one command: every cell is a table of one cell at a fixed place, drawings stand
/// one below the other.
class KinshipPage {
  public:
    /// Writes into the file of `cboKinship`, replacing it. `sKinshipTitle` is the title of the page.
    KinshipPage(Application& app, TextView sKinshipTitle);

    /// Stage 1 opens the page and writes a drawing, 2 writes a further one, 9 closes the page without
    /// drawing. True when a failure was shown to the user: the file is closed then, as far as it was written.
    /// @throws Failure when a size option is no number
    bool DisplayHtmlKinship(int iStage, const KinshipGrid& grid);

  private:
    void WriteHead(const CellSizes& sizes);
    void WriteDrawing(const KinshipGrid& grid, const CellSizes& sizes);
    void WriteCell(const GridCell& cell, const CellRectangle& rectangle);
    void WriteFoot();
    TextView ClassOf(const GridCell& cell) const;
    Text TextOf(const GridCell& cell) const;
    void WriteLine(std::initializer_list<TextView> pieces);
    void Flush();

    Application& app_;
    Text sKinshipTitle_;
    CellFont font_;
    CellTexts texts_;
    std::unique_ptr<File> file_;
    Text buffer_;
    std::int64_t lPageTop_ = 10;
};

}  // namespace swiftroll::modKinshipOutput
