// Texts in their boxes, and drawings on their sheets.
#include <gtest/gtest.h>

#include "drawing/drawing_sheets.h"
#include "drawing/sheet_starts.h"
#include "support/test_ports.h"

namespace swiftroll::test {
namespace {

using modPreview::Area;
using modPreview::PlacedLine;

/// A font of the size whose characters are half as wide as high.
const modPreview::FontShape& HalfWide(const CellFont&) {
    static const modPreview::FontShape shape = [] {
        modPreview::FontShape made;
        made.advances.fill(0.5);
        return made;
    }();
    return shape;
}

std::vector<Text> LinesIn(double width, double height, const std::vector<PrintedText>& texts) {
    const Area box{100, 200, 100 + width, 200 + height};
    std::vector<Text> lines;
    for (const PlacedLine& line : FitTexts(box, texts, HalfWide)) {
        EXPECT_GE(line.x, box.left + 44) << line.text;
        EXPECT_LE(line.x + line.width, box.right - 44) << line.text;
        EXPECT_GE(line.baseline - line.size, box.top + 44) << line.text;
        EXPECT_LE(line.baseline + line.size / 4, box.bottom - 44) << line.text;
        lines.push_back(line.text);
    }
    return lines;
}

TEST(FitTexts, WrapsMakesSmallerAndCutsButNeverLeavesTheBox) {
    const CellFont font{.size = "10"};  // a character takes 100 twips, a line 250
    const std::vector<PrintedText> name{{"Anne-Marie DE KERVIEL", font, 0, TextSide::Centre}};
    using Lines = std::vector<Text>;
    EXPECT_EQ(LinesIn(2300, 400, name), Lines({"Anne-Marie DE KERVIEL"}));
    EXPECT_EQ(LinesIn(1400, 700, name), Lines({"Anne-Marie DE", "KERVIEL"}));
    EXPECT_EQ(LinesIn(1400, 400, name), Lines({"Anne-Marie DE KERVIEL"})) << "smaller";
    EXPECT_EQ(LinesIn(500, 400, name), Lines({"Anne-Mar", "ie DE\x85"})) << "at half its size, cut";
    EXPECT_EQ(LinesIn(80, 400, name), Lines());
    const auto right = FitTexts({0, 0, 2000, 400}, {{"@I1@", font, 0, TextSide::Right}}, HalfWide);
    EXPECT_DOUBLE_EQ(right.at(0).x + right.at(0).width, 1955);
}

/// Keeps what a sheet shows: the boxes, where they stand on it, and its texts.
struct SheetLog : modPreview::SheetSurface {
    void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                       std::uint32_t) override {
        const double x = x_ + static_cast<double>(left) * scale_, y = y_ + static_cast<double>(top) * scale_;
        boxes.push_back(
            {x, y, x + static_cast<double>(width) * scale_, y + static_cast<double>(height) * scale_});
    }
    void DrawLine(std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint32_t) override { ++lines; }
    void PrintTexts(std::int64_t, std::int64_t, std::int64_t, std::int64_t,
                    const std::vector<PrintedText>& printed) override {
        for (const PrintedText& text : printed) texts.push_back(text.text);
    }
    void ShowPart(double x, double y, double scale, const Area&, const std::function<void()>& draw) override {
        x_ = x;
        y_ = y;
        scale_ = scale;
        draw();
    }
    std::vector<Area> boxes;
    std::vector<Text> texts;
    int lines = 0;

  private:
    double x_ = 0, y_ = 0, scale_ = 1;
};

/// Drawings on sheets with room for 5700 by 5700 twips, less the strips of a title.
struct Sheets {
    void Box(int left, int top, int width, int height) {
        drawing.FillRectangle(left, top, width, height, 0xFFFFFF);
        drawing.DrawLine(left, top, left + width, top, 0);
        drawing.DrawLine(left, top, left, top + height, 0);
        drawing.DrawLine(left, top + height, left + width, top + height, 0);
        drawing.DrawLine(left + width, top, left + width, top + height, 0);
    }
    std::vector<SheetLog> Drawn(modPreview::SheetLayout layout = {}) const {
        const modPreview::DrawingSheets sheets(drawing, {6000, 6000, {150, 150, 5850, 5850}}, layout);
        std::vector<SheetLog> logs(static_cast<std::size_t>(sheets.Count()));
        for (int i = 0; i < sheets.Count(); ++i) sheets.Draw(logs[static_cast<std::size_t>(i)], i);
        return logs;
    }
    modPreview::RecordedDrawing drawing;
};

TEST(DrawingSheets, ShowNothingOfTheBoxesOfTheirNeighbours) {
    for (const int gap : {0, 900}) {
        Sheets t;
        t.Box(0, 0, 3900, 3900);
        t.Box(3900 + gap, 0, 3900, 3900);
        t.Box(0, 3900 + gap, 3900, 3900);
        for (const SheetLog& sheet : t.Drawn()) {
            EXPECT_EQ(sheet.boxes.size(), 1u) << gap;
            EXPECT_EQ(sheet.lines, 4) << "no stray edge of a neighbour";
        }
    }
}

TEST(DrawingSheets, TellTheirTitlesAndCanBeginWithEachPath) {
    Sheets t;
    t.drawing.Open("Parenté"_t, 3, 2);
    for (const int top : {0, 1500, 3000}) {
        t.Box(0, top, 1000, 1000);
        t.drawing.EndDrawing(top + 1200, top == 0 ? "Chemin 1" : "Chemin 2");
    }
    ASSERT_EQ(t.Drawn().size(), 1u);
    EXPECT_EQ(t.Drawn()[0].texts, Rows({"Parenté"_t, "Page 1"})) << "several paths";
    const auto alone = t.Drawn({.drawingPerSheet = true});
    ASSERT_EQ(alone.size(), 3u);
    EXPECT_EQ(alone[1].texts, Rows({"Parenté"_t, "Chemin 2", "Page 2"}));
    EXPECT_EQ(alone[1].boxes.at(0).left, 150);
    t.Box(0, 4500, 20000, 1000);
    t.drawing.EndDrawing(6000, "Chemin 3");
    EXPECT_GT(t.Drawn({.drawingPerSheet = true}).size(), 6u) << "the long one goes on";
    const auto fitted = t.Drawn({.fitToSheet = true, .drawingPerSheet = true});
    ASSERT_EQ(fitted.size(), 4u);
    EXPECT_LE(fitted[3].boxes.at(0).right, 5851);
    EXPECT_EQ(fitted[0].boxes.at(0).right, 1150) << "what fits keeps its size";
    EXPECT_EQ(t.Drawn({.fitToSheet = true}).size(), 1u);
}

TEST(SheetStarts, LieBetweenDrawingsAndBoxesWhereTheyCan) {
    using Starts = std::vector<double>;
    EXPECT_EQ(modPreview::SheetStarts({{0, 900}}, {900}, 900, 1000), Starts({0})) << "all on one";
    EXPECT_EQ(modPreview::SheetStarts({}, {400, 900, 1300, 3000}, 3000, 1000), Starts({0, 900, 1300, 2300}))
        << "a new drawing, then a long one in pieces";
    EXPECT_EQ(modPreview::SheetStarts({{0, 300}, {300, 600}, {950, 1250}, {1250, 1550}}, {}, 1550, 1000),
              Starts({0, 950}))
        << "before the box that would be cut";
    EXPECT_EQ(modPreview::SheetStarts({{800, 1100}, {900, 1200}, {700, 950}}, {}, 1200, 1000),
              Starts({0, 700}))
        << "before the one before, to cut none";
    EXPECT_EQ(modPreview::SheetStarts({{0, 5000}}, {}, 2500, 1000), Starts({0, 1000, 2000}))
        << "through what is larger";
}

}  // namespace
}  // namespace swiftroll::test
