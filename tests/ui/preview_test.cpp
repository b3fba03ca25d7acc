// The preview and what it prints.
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "preview_dialog.h"
#include "sheet_starts.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Preview : public WindowTest {
  protected:
    /// Searches the paths between the oldest and the youngest of the family, and comes back to their tab.
    void StartWithPaths() {
        Start();
        Read(kFamily);
        program_->ThePresenter().Act([this] { Main().kinshipRequest.FindPathBetween("@I1@", "@I5@"); });
    }
    ui::PreviewDialog& Dialog() {
        return *dynamic_cast<ui::PreviewDialog*>(Window().findChild<QDialog*>(QStringLiteral("frmPreview")));
    }
    /// Boxes that take several sheets.
    void Enlarge() {
        program_->ThePresenter().Act([this] {
            Main().txtKinHeight.SetText("900");
            Main().txtKinWidth.SetText("1500");
        });
    }
    void Print() {
        ShowTab(0);
        ShowTab(5);
        program_->ThePresenter().Act([this] { Main().cboDrawKinship.SetListIndex(2); });
        Click("cmdPrintKinship");
    }
};

TEST_F(Preview, IsOfferedForPathsThatWereFound) {
    StartWithPaths();
    EXPECT_TRUE(Find<QToolButton>("cmdPrintKinship").isEnabled());
    Read(kFamily);
    EXPECT_FALSE(Find<QToolButton>("cmdPrintKinship").isEnabled()) << "after a read";
    ShowTab(5);
    EXPECT_FALSE(Find<QToolButton>("cmdPrintKinship").isEnabled()) << "no path";
}

TEST_F(Preview, AHastyAnswerToUnequalSizesKeepsTheBoxes) {
    StartWithPaths();
    ShowTab(0);
    ShowTab(5);
    OnDialog([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    Click("cmdPrintKinship");
    ASSERT_TRUE(boxes.last().contains(QStringLiteral("(=50)"))) << boxes.last().toStdString();
    EXPECT_EQ(Main().txtKinWidth.Get() + "/" + Main().txtKinH.Get(), "150/150");
}

TEST_F(Preview, ShowsPrintsAndExportsTheDrawing) {
    StartWithPaths();
    Print();
    ASSERT_TRUE(Dialog().isVisible());
    EXPECT_EQ(Dialog().Sheets().Count(), 1);
    EXPECT_GT(Dialog().Sheets().Sheet().width(), Dialog().Sheets().Sheet().height()) << "landscape";
    const QString pdf = Path(QStringLiteral("a.pdf")), svg = Path(QStringLiteral("a.svg"));
    EXPECT_TRUE(Dialog().WritePdf(pdf));
    EXPECT_TRUE(Dialog().WriteSvg(svg));
    QFile drawing(svg);
    ASSERT_TRUE(drawing.open(QIODevice::ReadOnly));
    const QByteArray content = drawing.readAll();
    EXPECT_TRUE(content.contains("DUPONT")) << content.size();
    EXPECT_FALSE(Dialog().WritePdf(Path(QStringLiteral("no/such/folder/a.pdf"))));
}

TEST_F(Preview, ALargeDrawingTakesSheetsOrFitsOne) {
    StartWithPaths();
    Enlarge();
    Print();
    EXPECT_GT(Dialog().Sheets().Count(), 3);
    EXPECT_EQ(Main().preview.PageCount(), Dialog().Sheets().Count());
    program_->ThePresenter().Act([this] { Main().preview.cmdNextPage.Click(); });
    EXPECT_EQ(Main().preview.Page(), 2);
    program_->ThePresenter().Act([this] { Main().preview.chkFitToPage.SetChecked(true); });
    EXPECT_EQ(Dialog().Sheets().Count(), 1);
    EXPECT_EQ(Main().preview.Page(), 1);
}

TEST_F(Preview, OpensOnTheFirstPageAndTellsOfAPrinterThatFails) {
    StartWithPaths();
    Enlarge();
    program_->ThePresenter().Act([this] { Main().preview.SetZoom(75); });
    Print();
    Click("cmdNextPage");
    EXPECT_EQ(Find<QLineEdit>("txtPageNr").text(), QStringLiteral("2"));
    Click("cmdClose");
    Print();
    EXPECT_EQ(Find<QLineEdit>("txtPageNr").text(), QStringLiteral("1"));
    EXPECT_EQ(Main().preview.Zoom(), 75);
    QPrinter printer;
    printer.setOutputFileName(Path(QStringLiteral("no/such/folder/a.pdf")));
    OnBox(QMessageBox::Ok);
    Dialog().Print(printer);
    EXPECT_TRUE(boxes.last().startsWith(QStringLiteral("Erreor d'impression\r\nErreur d'imprimante (")));
    EXPECT_TRUE(boxes.last().endsWith(QStringLiteral(" (482)")));
}

TEST_F(Preview, KeepsItsZoomFromOneRunToTheNext) {
    StartWithPaths();
    Print();
    for (int i = 0; i < 3; ++i) Click("Command1");
    const int zoom = Main().preview.Zoom();
    ASSERT_GT(zoom, 100);
    const std::vector<Text> zooms = Main().preview.cboZoom.Items();
    for (int run = 0; run < 2; ++run) {
        Click("cmdExit");
        StartAgain();
        EXPECT_EQ(Main().preview.Zoom(), zoom);
        EXPECT_EQ(Main().preview.cboZoom.Items(), zooms);
    }
}

/// A drawing on sheets of 6000 twips with margins of 150, as pictures of a pixel for 15 twips.
struct Sheets {
    void Box(int left, int top, int width, int height) {
        drawing.FillRectangle(left, top, width, height, 0xFFFFFF);
        drawing.DrawLine(left, top, left + width, top, 0);
        drawing.DrawLine(left, top, left, top + height, 0);
        drawing.DrawLine(left, top + height, left + width, top + height, 0);
        drawing.DrawLine(left + width, top, left + width, top + height, 0);
    }
    QImage Picture(int sheet) const {
        const QMarginsF margins(7.5, 7.5, 7.5, 7.5);
        const QPageLayout layout(QPageSize(QSizeF(300, 300), QPageSize::Point), QPageLayout::Portrait,
                                 margins);
        QImage picture(400, 400, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.scale(1 / 15.0, 1 / 15.0);
        ui::PreviewSheets(drawing, layout, false).Paint(painter, sheet);
        return picture;
    }
    /// What of a sheet is not white, from the corner of its printable area, in pixels.
    QRect Drawn(int sheet) const {
        const QImage picture = Picture(sheet);
        QRect drawn;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) != qRgb(255, 255, 255)) drawn |= QRect(x - 10, y - 10, 1, 1);
            }
        }
        return drawn;
    }
    ui::DrawingRecorder drawing;
};

TEST(PreviewSheets, ShowNothingOfTheBoxesOfTheirNeighbours) {
    for (const int gap : {0, 900}) {
        Sheets t;
        t.Box(0, 0, 3900, 3900);
        t.Box(3900 + gap, 0, 3900, 3900);
        t.Box(0, 3900 + gap, 3900, 3900);
        for (int sheet = 0; sheet < 3; ++sheet) {
            const QRect drawn = t.Drawn(sheet);
            EXPECT_TRUE(drawn.width() >= 260 && drawn.width() <= 262)
                << gap << " " << sheet << " " << drawn.width();
            EXPECT_TRUE(drawn.height() >= 260 && drawn.height() <= 262) << gap << " " << sheet;
        }
    }
}

TEST(PreviewSheets, TextsKeepAwayFromTheBordersOfTheirBox) {
    Sheets t;
    t.drawing.PrintTexts(0, 0, 3000, 3000, {{"\xC9\xC9\xC9", {.name = "Arial", .size = "8"}}});
    const QRect room(3, 3, 194, 194);
    EXPECT_TRUE(room.contains(t.Drawn(0))) << t.Drawn(0).top();
}

TEST(SheetStarts, LieBetweenDrawingsAndBoxesWhereTheyCan) {
    using Starts = std::vector<qreal>;
    EXPECT_EQ(ui::SheetStarts({{0, 900}}, {900}, 900, 1000), Starts({0})) << "all on one";
    EXPECT_EQ(ui::SheetStarts({}, {400, 900, 1300, 3000}, 3000, 1000), Starts({0, 900, 1300, 2300}))
        << "a new drawing, then a long one in pieces";
    EXPECT_EQ(ui::SheetStarts({{0, 300}, {300, 600}, {950, 1250}, {1250, 1550}}, {}, 1550, 1000),
              Starts({0, 950}))
        << "before the box that would be cut";
    EXPECT_EQ(ui::SheetStarts({{800, 1100}, {900, 1200}, {700, 950}}, {}, 1200, 1000), Starts({0, 700}))
        << "before the one before, to cut none";
    EXPECT_EQ(ui::SheetStarts({{0, 5000}}, {}, 2500, 1000), Starts({0, 1000, 2000}))
        << "through what is larger";
}

}  // namespace
}  // namespace swiftroll::test
