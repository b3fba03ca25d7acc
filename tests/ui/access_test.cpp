// The lists as assistive programs meet them.
#include <QAccessible>

#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class ListAccess : public WindowTest {};

TEST_F(ListAccess, TellTenRowsAsTheUserPassesThem) {
    Start();
    QByteArray gedcom;
    for (int i = 1; i <= 10; ++i)
        gedcom += "0 @I" + QByteArray::number(i) + "@ INDI\n1 NAME N" + QByteArray::number(i) + " /Roy/\n";
    Read(gedcom + "0 TRLR\n");
    ShowTab(0);
    // Where the box was, the window is the active one again.
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    ui::TableView& view = View(Main().lvwIn);
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Home);
    auto* table = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(table->role(), QAccessible::Table);
    EXPECT_EQ(table->text(QAccessible::Name), QStringLiteral("Individus"));
    ASSERT_NE(table->tableInterface(), nullptr);
    EXPECT_EQ(table->tableInterface()->rowCount(), 10);
    EXPECT_EQ(table->child(1)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(table->child(1)->text(QAccessible::Name), QStringLiteral("Nom"));
    for (int row = 0; row < 10; ++row) {
        if (row > 0) QTest::keyClick(&view, Qt::Key_Down);
        auto* cell = table->focusChild();
        ASSERT_NE(cell, nullptr) << row;
        EXPECT_EQ(cell->role(), QAccessible::Cell);
        EXPECT_EQ(cell->tableCellInterface()->rowIndex(), row);
        EXPECT_TRUE(cell->text(QAccessible::Name).startsWith(QStringLiteral("@I%1@, Roy, N%1").arg(row + 1)))
            << cell->text(QAccessible::Name).toStdString();
        EXPECT_EQ(table->tableInterface()->cellAt(row, 2)->text(QAccessible::Name),
                  QStringLiteral("N%1").arg(row + 1));
        EXPECT_TRUE(cell->state().focused && cell->state().selected && !cell->state().checked);
        QTest::keyClick(&view, Qt::Key_Space);
        EXPECT_TRUE(cell->state().checked);
    }
    QAccessibleInterface* first = table->tableInterface()->cellAt(0, 0);
    EXPECT_FALSE(first->state().focused);
    first->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(Main().lvwIn.Item(1).Checked());
    // What has gone says nothing.
    Read("0 @I1@ INDI\n0 TRLR\n");
    EXPECT_EQ(table->tableInterface()->cellAt(5, 0), nullptr);
}

TEST_F(ListAccess, AltOpensTheMenuOfTheListAndNotThatOfTheWindow) {
    StartWithFamily();
    ui::TableView& view = View(Main().lvwIn);
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Home);
    QString title;
    OnDialog([&](QWidget& popup) {
        title = popup.findChild<QAction*>(QStringLiteral("mnuFind")) != nullptr ? QStringLiteral("list")
                                                                                : QStringLiteral("other");
        QTest::keyClick(&popup, Qt::Key_Escape);
    });
    QTest::keyClick(&view, Qt::Key_F, Qt::AltModifier);  // that of "Fichier"
    QTest::qWait(50);
    EXPECT_EQ(title, QStringLiteral("list"));
}

}  // namespace
}  // namespace swiftroll::test
