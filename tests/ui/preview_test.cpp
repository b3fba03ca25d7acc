// The preview and what it prints.
#include <QFile>
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
        program_->ThePresenter().Act([this] { Main().FindPathBetween("@I1@", "@I5@"); });
    }
    ui::PreviewDialog& Dialog() {
        return *dynamic_cast<ui::PreviewDialog*>(Window().findChild<QDialog*>(QStringLiteral("frmPreview")));
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
    program_->ThePresenter().Act([this] {
        Main().txtKinHeight.SetText("900");
        Main().txtKinWidth.SetText("1500");
    });
    Print();
    EXPECT_GT(Dialog().Sheets().Count(), 3);
    EXPECT_EQ(Main().frmPreview.PageCount(), Dialog().Sheets().Count());
    program_->ThePresenter().Act([this] { Main().frmPreview.cmdNextPage.Click(); });
    EXPECT_EQ(Main().frmPreview.Page(), 2);
    program_->ThePresenter().Act([this] { Main().frmPreview.chkFitToPage.SetChecked(true); });
    EXPECT_EQ(Dialog().Sheets().Count(), 1);
    EXPECT_EQ(Main().frmPreview.Page(), 1);
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
