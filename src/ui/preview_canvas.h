#pragma once

#include <QScrollArea>
#include <functional>

#include "drawing/drawing_sheets.h"

namespace swiftroll::ui {

/// One sheet on a grey ground, at a zoom, with scroll bars.
class PreviewCanvas : public QScrollArea {
  public:
    PreviewCanvas();

    /// Ctrl and the wheel: -1 for smaller, 1 for larger.
    std::function<void(int direction)> OnZoom;
    /// Shows the sheet `index` of `sheets` from 0, at `zoom` percent, 0 for the whole sheet and -1 for its
    /// width.
    void Show(const modPreview::DrawingSheets& sheets, int index, int zoom);

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    class Paper;
    Paper* paper_;
};

}  // namespace swiftroll::ui
