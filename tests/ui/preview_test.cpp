// The preview and what it prints.
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "preview_dialog.h"
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
    EXPECT_GT(Dialog().Sheets().Sheet().width, Dialog().Sheets().Sheet().height) << "landscape";
    const QString pdf = Path(QStringLiteral("a.pdf")), svg = Path(QStringLiteral("a.svg"));
    Dialog().WritePdf(ui::FromQt(pdf));
    Dialog().WriteSvg(ui::FromQt(svg));
    QFile drawing(svg);
    ASSERT_TRUE(drawing.open(QIODevice::ReadOnly));
    const QByteArray content = drawing.readAll();
    EXPECT_TRUE(content.contains("DUPONT")) << content.size();
    EXPECT_THROW(Dialog().WritePdf(ui::FromQt(Path(QStringLiteral("no/such/folder/a.pdf")))), Failure);
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

}  // namespace
}  // namespace swiftroll::test
