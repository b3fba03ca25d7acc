#pragma once

#include <QPainter>
#include <map>
#include <optional>
#include <tuple>

#include "drawing/drawing_sheets.h"

namespace swiftroll::ui {

/// The shapes of the fonts of the screen.
class QtFontShapes {
  public:
    const modPreview::FontShape& Of(const CellFont& font);

  private:
    std::map<std::tuple<Text, bool, bool>, modPreview::FontShape> shapes_;  // by name, bold, italic
};

/// Draws with a painter that counts in twips.
class QtSurface : public modPreview::SheetSurface {
  public:
    /// With an `ink`, what stands on the ground beside the boxes has this colour. Both others outlive this.
    QtSurface(QPainter& painter, QtFontShapes& shapes, std::optional<QColor> ink = {})
        : painter_(painter), shapes_(shapes), ink_(ink) {}

    void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                       std::uint32_t colour) override;
    void DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                  std::uint32_t colour) override;
    void PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                    const std::vector<PrintedText>& texts) override;
    void ShowPart(double x, double y, double scale, const modPreview::Area& area,
                  const std::function<void()>& draw) override;

  private:
    QPainter& painter_;
    QtFontShapes& shapes_;
    std::optional<QColor> ink_;
    QRectF lastBox_;
};

}  // namespace swiftroll::ui
