#pragma once

#include "app/application.h"
#include "drawing/drawing_sheets.h"

namespace swiftroll {

/// The window that shows drawings as they will be printed, without a screen: zoom and page by the numbers
/// that a user sees. What the sheets look like is the presentation's.
class frmPreview : public Window {
  public:
    explicit frmPreview(Application& app);

    ComboBox cboZoom;
    Command cmdZoomMinus, Command1;
    Command cmdPreviousPage, cmdNextPage;
    TextBox txtPageNr;
    /// "Page" before the number, and how many there are behind it.
    Label Label1, lblPageOn;
    CheckBox chkFitToPage, chkPathPerPage;
    Command cmdSetup, cmdPrint, cmdExport, cmdHelp, cmdClose;

    /// Zoom in percent; 0 for the whole page, -1 for its width.
    int Zoom() const;
    /// Takes the nearest zoom of the list.
    void SetZoom(int percent);
    /// The page that is shown, from 1 to `PageCount`.
    int Page() const;
    int PageCount() const { return pageCount_; }
    /// How the drawings are laid out on the sheets.
    modPreview::SheetLayout Layout() const { return {chkFitToPage.Checked(), chkPathPerPage.Checked()}; }
    /// Comes to the screen with new drawings, at their first page.
    void Open();
    /// Tells how many sheets the drawings take.
    void SetPageCount(int count);

  private:
    void Step(int direction);
    void GoToPage(int page);
    int pageCount_ = 1;
};

}  // namespace swiftroll
