#pragma once

#include <QPrinter>
#include <memory>

#include "binder.h"
#include "drawing/drawing_sheets.h"
#include "secondary_dialog.h"

namespace swiftroll::ui {

class PreviewCanvas;
class QtDialogs;

/// The drawings as they will be printed.
class PreviewDialog : public SecondaryDialog {
  public:
    PreviewDialog(Presenter& presenter, modPreview::RecordedDrawing& drawing, QWidget* owner);

    /// Writes all sheets into a PDF file, or the whole drawing into an SVG file. @throws Failure
    void WritePdf(TextView file);
    void WriteSvg(TextView file);
    /// Prints the pages that were asked of the printer; a failure is shown to the user.
    void Print(QPrinter& printer);
    const modPreview::DrawingSheets& Sheets() const { return *sheets_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* BuildTools();
    void BindCommands();
    void LayOut();
    void Refresh();
    bool PrintOn(QPagedPaintDevice& device, int first, int last);
    void Print();
    void SetUp();
    void Export();

    Presenter& presenter_;
    frmPreview& form_;
    modPreview::RecordedDrawing& drawing_;
    Binder binder_;
    QPageLayout layout_;
    std::unique_ptr<modPreview::DrawingSheets> sheets_;
    PreviewCanvas* canvas_ = nullptr;
};

}  // namespace swiftroll::ui
