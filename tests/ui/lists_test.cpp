// The lists: context menu, marks, keys, columns and the search.
#include <QClipboard>
#include <QMenu>
#include <QScrollBar>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

using ui::TableView;

class Lists : public WindowTest {
  protected:
    QWidget* Viewport(Table& table) { return View(table).viewport(); }

    /// The highlighted rows: ".x...".
    static std::string Selected(Table& table) {
        std::string rows;
        for (int i = 1; i <= table.Count(); ++i) rows += table.Item(i).Selected() ? 'x' : '.';
        return rows;
    }
};

TEST_F(Lists, AChosenEntryWorksOnTheClickedCell) {
    StartWithFamily();
    const auto row = Main().lvwIn.Item("@I5@").Index() - 1;
    OnDialog([&](QWidget& popup) {
        EXPECT_TRUE(popup.findChild<QAction*>(QStringLiteral("mnuFindPath"))->isEnabled());
        EXPECT_FALSE(popup.findChild<QAction*>(QStringLiteral("mnuDrawKinship"))->isEnabled());
        EXPECT_TRUE(Main().lvwIn.Item("@I5@").Selected()) << "marked for the time of the menu";
        auto* action = popup.findChild<QAction*>(QStringLiteral("mnuAddParents"));
        popup.close();
        action->trigger();
    });
    QTest::mouseClick(Viewport(Main().lvwIn), Qt::RightButton, {},
                      CellAt(Main().lvwIn, row, In::LastName - 1));
    QTest::qWait(50);
    EXPECT_TRUE(Main().lvwIn.Item("@I3@").Checked());
    EXPECT_TRUE(Main().lvwIn.Item("@I4@").Checked());
    EXPECT_FALSE(Main().lvwIn.Item("@I1@").Checked());
}

TEST_F(Lists, MouseAndKeysMarkRowsAsListsDo) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    const auto selected = [&] { return Selected(table); };
    const auto click = [&](int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(Viewport(table), Qt::LeftButton, modifiers, CellAt(table, row, In::FirstName - 1));
    };
    click(1);
    EXPECT_EQ(selected(), ".x...");
    click(3, Qt::ShiftModifier);
    EXPECT_EQ(selected(), ".xxx.");
    click(4, Qt::ControlModifier);
    EXPECT_EQ(selected(), ".xxxx");
    QTest::keyClick(&View(table), Qt::Key_Home);
    EXPECT_EQ(selected(), "x....");
    QTest::keyClick(&View(table), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "xx...");
    QTest::keyClick(&View(table), Qt::Key_Space);
    EXPECT_TRUE(table.Item(2).Checked());
    EXPECT_FALSE(table.Item(1).Checked());
    // The tick stands at the left of the first column.
    QTest::mouseClick(Viewport(table), Qt::LeftButton, {}, QPoint(8, CellAt(table, 4, 0).y()));
    EXPECT_TRUE(table.Item(5).Checked());
    EXPECT_EQ(selected(), "xx...") << "a tick leaves the highlight";
    QTest::keyClick(&View(table), Qt::Key_A, Qt::ControlModifier);
    QTest::qWait(20);
    EXPECT_EQ(selected(), "xxxxx");
    QTest::keyClick(&View(table), Qt::Key_C, Qt::ControlModifier);
    QTest::qWait(20);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("ID\tNom\tPrénom\t")))
        << QApplication::clipboard()->text().left(80).toStdString();
    EXPECT_EQ(QApplication::clipboard()->text().count(QLatin1Char('\n')), 6);
}

TEST_F(Lists, KeysWorkOnTheCellThatWasClickedLast) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    for (const int row : {1, 3}) table.Item(row + 1).SetChecked(true);
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(&View(table), key, Qt::ControlModifier);
        QTest::qWait(20);
    };
    QTest::mouseClick(Viewport(table), Qt::LeftButton, {}, CellAt(table, 0, In::FirstName - 1));
    QTest::mouseMove(Viewport(table), CellAt(table, 2, In::LastName - 1));
    press(Qt::Key_J);
    EXPECT_EQ(Find<QComboBox>("cboFavorites(0)").currentText(), QStringLiteral("@I1@^"));
    press(Qt::Key_N);
    EXPECT_TRUE(table.Item(2).Selected());
    EXPECT_FALSE(table.Item(4).Selected());
    press(Qt::Key_N);
    EXPECT_TRUE(table.Item(4).Selected());
    press(Qt::Key_W);
    EXPECT_FALSE(table.Item(4).Marked());
    EXPECT_TRUE(table.Item(2).Marked());
    // The search looks in the column of the last click, and goes on there when others are clicked.
    QTest::mouseClick(Viewport(table), Qt::LeftButton, {}, CellAt(table, 4, In::FirstName - 1));
    press(Qt::Key_F);
    auto* dialog = Window().findChild<QDialog*>(QStringLiteral("frmFind"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    QTest::qWait(20);
    auto* text = dialog->findChild<QComboBox*>(QStringLiteral("cboTextToFind(0)"));
    EXPECT_EQ(text->lineEdit()->selectedText(), QStringLiteral("Luc"));
    const QSize size = dialog->size();
    dialog->resize(size + QSize(80, 60));
    EXPECT_EQ(dialog->size(), size);
    QTest::keyClicks(text->lineEdit(), QStringLiteral("paul"));
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    QTest::mouseClick(Viewport(table), Qt::LeftButton, {}, CellAt(table, 0, In::LastName - 1));
    press(Qt::Key_S);
    EXPECT_TRUE(table.Item("@I3@").Selected());
    EXPECT_EQ(dialog->size(), size);
}

TEST_F(Lists, TheMenuOfTheKeyboardIsAboutThePointerOrElseTheCurrentRow) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    QTest::mouseClick(Viewport(table), Qt::LeftButton, Qt::ControlModifier,
                      CellAt(table, 0, In::FirstName - 1));
    QTest::mouseClick(Viewport(table), Qt::LeftButton, Qt::ControlModifier,
                      CellAt(table, 0, In::FirstName - 1));
    QTest::keyClick(&View(table), Qt::Key_Down, Qt::ControlModifier);
    const auto menuIsAbout = [&](QWidget& under, const QPoint& place) {
        std::string rows;
        OnDialog([&](QWidget& popup) {
            rows = Selected(table);
            rows += popup.findChild<QAction*>(QStringLiteral("mnuAddFavorite"))->isEnabled() ? "+" : "-";
            popup.close();
        });
        QTest::mouseMove(&under, place);
        QTest::keyClick(&View(table), Qt::Key_F10, Qt::ShiftModifier);
        QTest::qWait(50);
        return rows;
    };
    QWidget& list = *Viewport(table);
    EXPECT_EQ(menuIsAbout(Find<QWidget>("cmdHelp"), QPoint(5, 5)), ".x...+") << "the current row";
    EXPECT_EQ(menuIsAbout(list, CellAt(table, 3, 0)), "...x.+");
    EXPECT_EQ(menuIsAbout(list, QPoint(20, list.height() - 2)), ".....-") << "below the rows";
    // What lies below the viewport is no row, nor is what lies right of the columns.
    View(table).resize(View(table).width(), View(table).Header().height() + View(table).RowHeight() + 30);
    EXPECT_EQ(View(table).RowAt(QPoint(20, list.height() + 1)), -1);
    EXPECT_GE(View(table).RowAt(QPoint(20, list.height() - 1)), 0);
    View(table).Header().resizeSections(QHeaderView::Fixed);
    for (int i = 0; i < View(table).Header().count(); ++i) View(table).Header().resizeSection(i, 20);
    EXPECT_EQ(View(table).RowAt(QPoint(20 * View(table).Header().count() + 5, 5)), -1);
}

TEST_F(Lists, AHeaderSortsAndItsBorderIsTheWidth) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    QHeaderView& header = View(table).Header();
    const auto clickHeader = [&](int column) {
        const QPoint point(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                           header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, point);
    };
    clickHeader(In::FirstName - 1);
    EXPECT_EQ(table.Item(1).Cell(In::FirstName), "Anne");
    EXPECT_EQ(table.ColumnAt(In::FirstName).Icon, "OnDw");
    clickHeader(In::FirstName - 1);
    EXPECT_EQ(table.Item(1).Cell(In::FirstName), "Paul");
    header.resizeSection(In::FirstName - 1, 192);
    EXPECT_EQ(table.ColumnAt(In::FirstName).Width, 5080);
}

TEST_F(Lists, ADoubleClickJumpsAndTheTabGathersTheMarkedRows) {
    StartWithFamily();
    ShowTab(4);
    QTest::mouseDClick(Viewport(Main().lvwFamily), Qt::LeftButton, {},
                       CellAt(Main().lvwFamily, 1, Family::IDWife - 1));
    EXPECT_EQ(Window().Tabs().currentIndex(), 0);
    EXPECT_TRUE(Main().lvwIn.Item("@I4@").Checked());
    const QPoint tab = Window().Tabs().tabBar()->tabRect(0).center();
    QTest::mouseDClick(Window().Tabs().tabBar(), Qt::LeftButton, {}, tab);
    EXPECT_EQ(Main().lvwIn.Item(1).Text(), "@I4@");
    EXPECT_EQ(Find<QLabel>("pnlMessage").text(), QStringLiteral("1 \"Entrée(s)\" sélectionnée(s) sur 5"));
}

TEST_F(Lists, PaintedCellsAreLegibleOnADarkGround) {
    StartWithFamily();
    Main().lvwIn.Item(1).SetChecked(true);
    Main().lvwIn.SetPaintedColumn(In::LastName);
    TableView& view = View(Main().lvwIn);
    const auto shows = [&](const QColor& ground, const QColor& colour) {
        QPalette palette = view.palette();
        palette.setColor(QPalette::Base, ground);
        view.setPalette(palette);
        const QImage image = view.viewport()->grab().toImage();
        for (int y = 0; y < view.RowHeight(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) == colour.rgb()) return true;
        return false;
    };
    const QColor red(255, 0, 0);
    EXPECT_TRUE(shows(Qt::white, red));
    EXPECT_TRUE(shows(Qt::black, red.lighter(150)));
    EXPECT_FALSE(shows(Qt::black, red));
}

}  // namespace
}  // namespace swiftroll::test
