#pragma once

#include "app/product.h"
#include "drawing/kinship_document.h"

namespace swiftroll::modKinshipOutput {

/// The drawings as a page of HTML in the file of `cboKinship`, which it replaces: every cell is a table of
/// one cell at a fixed place. After a failure the file is closed as far as it was written.
class KinshipPage : public KinshipDocument {
  public:
    /// `sKinshipTitle` is the title of the page.
    KinshipPage(const DrawingSource& source, TextView sKinshipTitle, const Product& product, Files& files,
                Clock& clock);

  protected:
    void Begin(const CellSizes& sizes) override;
    void WriteCell(TextView sClass, TextView sText, const CellRectangle& place,
                   const CellSizes& sizes) override;
    void EndDrawing(std::int64_t lTop, std::int64_t lWidth, TextView sPathTitle) override;
    void End(std::int64_t lTop) override;
    void Fail(const Failure& failure) override;

  private:
    void WriteLine(std::initializer_list<TextView> pieces);
    void Flush();

    const Product& product_;
    Files& files_;
    Clock& clock_;
    std::unique_ptr<File> file_;
    Text buffer_;
};

}  // namespace swiftroll::modKinshipOutput
