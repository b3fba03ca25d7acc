#pragma once

#include "app/ports.h"
#include "drawing_files/font_shapes.h"

namespace swiftroll::modDrawingFiles {

/// Drawings one below the other as an SVG file, with texts as texts. They are kept until the end, since the
/// first line of the file tells their size. All members throw Failure FileAccess.
class SvgFile : public DrawingDevice {
  public:
    SvgFile(Files& files, TextView name) : files_(files), name_(name) {}

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
    void Reach(std::int64_t right, std::int64_t bottom);
    void WriteLine(const modPreview::PlacedLine& line);

    Files& files_;
    Text name_;
    std::unique_ptr<File> file_;
    FontShapes shapes_;
    Text title_;
    std::string drawings_, drawing_;  // those that are complete, and the present one, as UTF-8
    std::int64_t right_ = 0, bottom_ = 0;
};

}  // namespace swiftroll::modDrawingFiles
