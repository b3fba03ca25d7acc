// The search dialog beside the window, and what becomes the current row or comes into view without a click.
#include <QMenu>
#include <QScrollBar>
#include <QWindow>

#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

/// Couples without children, each in a family of its own; their numbers have the same length, for the sorts.
QByteArray ManyCouples() {
    QByteArray people = "0 HEAD\n1 CHAR ANSI\n", families;
    for (int i = 100; i < 220; ++i) {
        const QByteArray n = QByteArray::number(i);
        people += "0 @H" + n + "@ INDI\n1 NAME Jean /Dupont/\n1 SEX M\n1 FAMS @F" + n + "@\n";
        people += "0 @W" + n + "@ INDI\n1 NAME Anne /Martin/\n1 SEX F\n1 FAMS @F" + n + "@\n";
        families += "0 @F" + n + "@ FAM\n1 HUSB @H" + n + "@\n1 WIFE @W" + n + "@\n";
    }
    return people + families + "0 TRLR\n";
}

class FindLife : public WindowTest {
  protected:
    void ClickCell(Table& table, int row, int column, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(View(table).viewport(), button, {}, CellAt(table, row, column));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(&View(*Main().lvwActiveListView), key, modifiers);
        QTest::qWait(20);
    }
    void GoTo(QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(IsInFront(window));
    }
    /// Whether the window itself is or becomes the active one: its owner counts as active with it.
    static bool IsInFront(QWidget& window) {
        const bool isActive = QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }, 500);
        QTest::qWait(20);
        return isActive;
    }
    std::string Favorite() { return Find<QComboBox>("cboFavorites(0)").currentText().toStdString(); }
    /// The key of the row that the next key down starts from.
    Text CurrentKey() { return Main().lvwActiveListView->Current().value().Key(); }
    void DismissMenu() {
        OnDialog([](QWidget& popup) { popup.close(); });
    }
    bool IsInView(Table& table, TextView key) {
        const int row = table.Item(key).Index() - 1;
        const QRect cell = View(table).visualRect(View(table).model()->index(row, 0));
        return cell.top() >= 0 && cell.bottom() < View(table).viewport()->height();
    }
    /// A double click on a cell of the last row of the present list.
    void DoubleClickLast(Table& table, int column) {
        QTest::keyClick(&View(table), Qt::Key_End);
        View(table).horizontalScrollBar()->setValue(View(table).Header().sectionPosition(column));
        const int row = table.Count() - 1 - View(table).verticalScrollBar()->value();
        QTest::mouseDClick(View(table).viewport(), Qt::LeftButton, {}, CellAt(table, row, column));
        QTest::qWait(50);
    }
};

TEST_F(FindLife, TheDialogComesForwardFilledAgainAndKeepsTheClickThatBroughtIt) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    ClickCell(table, 4, In::FirstName - 1);
    Press(Qt::Key_F);
    auto* dialog = Window().findChild<QDialog*>(QStringLiteral("frmFind"));
    ASSERT_TRUE(IsInFront(*dialog));
    auto* text = dialog->findChild<QComboBox*>(QStringLiteral("cboTextToFind(0)"));
    auto* column = dialog->findChild<QComboBox*>(QStringLiteral("cboColumns(0)"));
    EXPECT_EQ(column->currentText(), QStringLiteral("Prénom"));
    GoTo(Window());
    ClickCell(table, 0, In::LastName - 1);
    Press(Qt::Key_F);
    EXPECT_TRUE(IsInFront(*dialog));
    EXPECT_EQ(column->currentText(), QStringLiteral("Nom"));
    EXPECT_EQ(text->lineEdit()->selectedText(), QStringLiteral("Dupont"));
    EXPECT_TRUE(text->hasFocus());
    // The press comes before the dialog is told that it is the active one.
    GoTo(Window());
    ClickCell(table, 1, In::LastName - 1);
    auto* find = dialog->findChild<QWidget*>(QStringLiteral("cmdFind"));
    QWindow* window = dialog->windowHandle();
    const QPoint middle = find->mapTo(dialog, find->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, middle);
    GoTo(*dialog);
    QTest::mouseRelease(window, Qt::LeftButton, {}, middle);
    QTest::qWait(20);
    EXPECT_TRUE(table.Item("@I1@").Selected()) << "the click is lost";
    QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("cmdFindNext")), Qt::LeftButton);
    EXPECT_TRUE(table.Item("@I3@").Selected());
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(FindLife, WhatAKeyLeadsToIsTheCurrentRow) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    for (const TextView id : {"@I3@", "@I5@"}) table.Item(id).SetChecked(true);
    const Text marked = table.Item("@I3@").Index() < table.Item("@I5@").Index() ? "@I3@" : "@I5@";
    ClickCell(table, 0, In::LastName - 1);
    Press(Qt::Key_N);
    EXPECT_EQ(CurrentKey(), marked);
    Press(Qt::Key_J);
    EXPECT_EQ(Favorite(), marked + "^");
    const int row = table.Item(marked).Index();
    Press(Qt::Key_Down, {});
    EXPECT_EQ(CurrentKey(), table.Item(row + 1).Key());
    // The menu of the keyboard is about the row under the pointer.
    ClickCell(table, 0, In::LastName - 1);
    QTest::mouseMove(View(table).viewport(), CellAt(table, 2, In::LastName - 1));
    OnDialog([](QWidget& popup) {
        auto* add = popup.findChild<QAction*>(QStringLiteral("mnuAddFavorite"));
        popup.close();
        add->trigger();
    });
    Press(Qt::Key_Menu, {});
    QTest::qWait(50);
    EXPECT_EQ(Favorite(), table.Item(3).Key() + "^");
    // A row that the search finds.
    const Text wanted = table.Item(5).Key();
    ClickCell(table, 4, In::FirstName - 1);
    Press(Qt::Key_F);
    GoTo(Window());
    ClickCell(table, 0, In::FirstName - 1);
    Press(Qt::Key_S);
    EXPECT_EQ(CurrentKey(), wanted);
}

TEST_F(FindLife, AMenuBesideTheRowsLeavesTheKeyOfTheFavorites) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    QWidget& list = *View(table).viewport();
    const auto addsFavorite = [&](int row) {
        ClickCell(table, row, In::LastName - 1);
        Press(Qt::Key_J);
        EXPECT_EQ(Favorite(), table.Item(row + 1).Key() + "^");
    };
    DismissMenu();
    QTest::mouseClick(&list, Qt::RightButton, {}, QPoint(20, list.height() - 2));
    QTest::qWait(50);
    addsFavorite(1);
    DismissMenu();
    QTabBar& tabs = *Window().Tabs().tabBar();
    QTest::mouseClick(&tabs, Qt::RightButton, {}, tabs.tabRect(0).center());
    QTest::qWait(50);
    addsFavorite(2);
}

TEST_F(FindLife, AJumpShowsItsRowInAListThatWasHidden) {
    Start();
    const QSize smallest = Window().size();
    Window().resize(smallest + QSize(0, 400));
    QTest::qWait(20);
    Read(ManyCouples());
    ShowTab(0);
    QTest::qWait(20);
    ShowTab(2);
    DoubleClickLast(Main().lvwFamilyXref, FamilyXref::IDFam - 1);
    ASSERT_EQ(Window().Tabs().currentIndex(), 4);
    const Text family = CurrentKey();
    EXPECT_TRUE(IsInView(Main().lvwFamily, family)) << "in a list that was never shown";
    Window().resize(smallest);
    QTest::qWait(20);
    DoubleClickLast(Main().lvwFamily, Family::IDWife - 1);
    ASSERT_EQ(Window().Tabs().currentIndex(), 0);
    EXPECT_TRUE(IsInView(Main().lvwIn, CurrentKey())) << "in a list that was larger";
}

}  // namespace
}  // namespace swiftroll::test
