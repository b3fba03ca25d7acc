// Filter, marks and headers of the lists, as a user works with them.
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

#include "list_strip.h"
#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class FilterTest : public WindowTest {
  protected:
    ui::ListStrip& Strip(const char* table = "lvwIn") {
        return *dynamic_cast<ui::ListStrip*>(&Find<QWidget>((std::string("strip.") + table).c_str()));
    }
    QString Counted() { return Strip().findChild<QLabel*>(QStringLiteral("listCount"))->text(); }
    void Press(const char* command) {
        auto* button = Strip().findChild<QPushButton*>(QLatin1String(command));
        ASSERT_TRUE(button->isVisible() && button->isEnabled()) << command;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    /// The identifiers that the list shows, from the top.
    QString Seen(Table& table) {
        QString ids;
        const QAbstractItemModel& model = *View(table).model();
        for (int row = 0; row < model.rowCount(); ++row) ids += model.index(row, 0).data().toString();
        return ids;
    }
    /// What the tip says at a point; empty when there is none.
    QString TipAt(QWidget& widget, const QPoint& point) {
        QToolTip::hideText();
        QTest::qWait(400);  // it lingers
        QHelpEvent event(QEvent::ToolTip, point, widget.mapToGlobal(point));
        QApplication::sendEvent(&widget, &event);
        QTest::qWait(400);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    QPoint HeaderAt(Table& table, int section) {
        const QHeaderView& header = View(table).Header();
        return QPoint(header.sectionViewportPosition(section) + header.sectionSize(section) / 2,
                      header.height() / 2);
    }
};

TEST_F(FilterTest, AUserFiltersMarksWhatIsSeenAndGoesOn) {
    StartWithFamily();
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Table& table = Main().lvwIn;
    QTest::mouseClick(View(table).viewport(), Qt::LeftButton, {}, CellAt(table, 3, In::FirstName - 1));
    EXPECT_EQ(Counted(), QStringLiteral("5 lignes, 1 marquée"));
    QTest::keyClick(&View(table), Qt::Key_F3);
    ASSERT_EQ(Window().focusWidget(), &Strip().Filter());
    QTest::keyClicks(&Strip().Filter(), QStringLiteral("dupont ly"));
    EXPECT_EQ(Seen(table), QStringLiteral("@I1@@I3@@I5@"));
    EXPECT_EQ(Counted(), QStringLiteral("5 lignes dont 2 masquées, 1 marquée dont 1 masquée"));
    // The rows that are seen are those that mouse and keys work with.
    QTest::keyClick(&Strip().Filter(), Qt::Key_Return);
    ASSERT_EQ(Window().focusWidget(), &View(table));
    QTest::mouseClick(View(table).viewport(), Qt::LeftButton, {}, CellAt(table, 1, In::FirstName - 1));
    EXPECT_TRUE(table.Item("@I3@").Selected());
    EXPECT_FALSE(table.Item("@I4@").Selected());
    QTest::keyClick(&View(table), Qt::Key_Down);
    EXPECT_TRUE(table.Item("@I5@").Selected());
    EXPECT_EQ(table.MarkedCount(), 1);
    QTest::keyClick(&View(table), Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(table.MarkedCount(), 3) << "hidden rows between are left out";
    QTest::keyClick(&View(table), Qt::Key_D, Qt::ControlModifier);
    QTest::qWait(20);
    Press("cmdCheckShown");
    EXPECT_TRUE(table.Item("@I5@").Checked());
    EXPECT_FALSE(table.Item("@I2@").Checked());
    EXPECT_EQ(Find<QLabel>("messageBarText").text(),
              QStringLiteral("3 lignes ajoutées aux marques de « Entrée »."));
    QTest::keyClick(&View(table), Qt::Key_A, Qt::ControlModifier);
    QTest::qWait(20);
    EXPECT_EQ(table.MarkedCount(), 5) << "all stays all";
    QTest::keyClick(&View(table), Qt::Key_Z, Qt::ControlModifier);
    QTest::qWait(20);
    EXPECT_EQ(table.MarkedCount(), 3);
    Press("cmdUndoMarks");
    EXPECT_EQ(table.MarkedCount(), 0);
    // A jump to a hidden row shows all of them.
    ShowTab(4);
    QTest::mouseDClick(View(Main().lvwFamily).viewport(), Qt::LeftButton, {},
                       CellAt(Main().lvwFamily, 1, Family::IDWife - 1));
    EXPECT_EQ(Window().Tabs().currentIndex(), 0);
    EXPECT_EQ(Strip().Filter().text(), QString());
    EXPECT_EQ(Seen(table).size(), 20);
    EXPECT_EQ(Counted(), QStringLiteral("5 lignes, 1 marquée"));
    Press("cmdGather");
    EXPECT_EQ(table.Item(1).Key(), "@I4@");
    EXPECT_EQ(Find<QLabel>("pnlMessage").text(), QStringLiteral("1 \"Entrée(s)\" sélectionnée(s) sur 5"));
    // Escape shows all rows and leads back; the strip at the right shows where the marked row is.
    QTest::keyClick(&View(table), Qt::Key_F3);
    QTest::keyClicks(&Strip().Filter(), QStringLiteral("zzz"));
    EXPECT_EQ(Seen(table), QString());
    QTest::keyClick(&Strip().Filter(), Qt::Key_Escape);
    EXPECT_EQ(Seen(table).size(), 20);
    EXPECT_EQ(Window().focusWidget(), &View(table));
    const QImage marks = View(table).findChild<QWidget*>(QStringLiteral("markStrip"))->grab().toImage();
    const QRgb mark = View(table).palette().color(QPalette::Highlight).rgb();
    EXPECT_EQ(marks.pixel(3, 0), mark);
    EXPECT_NE(marks.pixel(3, marks.height() / 2), mark);
}

TEST_F(FilterTest, LettersAndReadsFollowTheRowsThatAreSeen) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    QTest::mouseClick(View(table).Header().viewport(), Qt::LeftButton, {},
                      HeaderAt(table, In::FirstName - 1));
    View(table).setFocus();
    QTest::keyClicks(&View(table), QStringLiteral("ma"));
    EXPECT_TRUE(table.Item("@I4@").Selected()) << "Marie";
    QTest::keyClick(&View(table), Qt::Key_F3);
    QTest::keyClicks(&Strip().Filter(), QStringLiteral("dupont"));
    Read("0 HEAD\n0 @I7@ INDI\n1 NAME Luc /Dupont/\n0 @I8@ INDI\n1 NAME Eve /Martin/\n0 TRLR\n");
    EXPECT_EQ(Seen(table), QStringLiteral("@I7@"));
    EXPECT_FALSE(Main().mnuUndoMarks.Enabled);
}

TEST_F(FilterTest, AHeaderFitsHidesAndExplains) {
    StartWithFamily();
    Table& table = Main().lvwIn;
    QHeaderView& header = View(table).Header();
    Main().lvwIn.Item(1).SetCell(In::FirstName, "Jean-Baptiste Emmanuel Maximilien");
    const QPoint cell = CellAt(table, 0, In::FirstName - 1);
    EXPECT_EQ(TipAt(*View(table).viewport(), cell), QStringLiteral("Jean-Baptiste Emmanuel Maximilien"));
    const int before = header.sectionSize(In::FirstName - 1);
    const QPoint border(header.sectionViewportPosition(In::FirstName - 1) + before - 1, header.height() / 2);
    QTest::mouseMove(header.viewport(), border);
    QTest::mouseDClick(header.viewport(), Qt::LeftButton, {}, border);
    EXPECT_GT(header.sectionSize(In::FirstName - 1), before);
    EXPECT_EQ(TipAt(*View(table).viewport(), cell), QString()) << "the whole text is seen";
    EXPECT_TRUE(TipAt(*View(table).viewport(), QPoint(20, View(table).viewport()->height() - 5))
                    .startsWith(QStringLiteral("Un double-clic sur l'onglet")));
    EXPECT_TRUE(
        TipAt(*header.viewport(), HeaderAt(table, In::LastName - 1)).contains(QStringLiteral("export")));
    OnDialog([&](QWidget& popup) {
        EXPECT_FALSE(popup.findChild<QAction*>(QStringLiteral("mnuColShow"))->isEnabled());
        auto* hide = popup.findChild<QAction*>(QStringLiteral("mnuColHide"));
        popup.close();
        hide->trigger();
    });
    const QPoint place = HeaderAt(table, In::LastName - 1);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, place, header.viewport()->mapToGlobal(place));
    QApplication::sendEvent(header.viewport(), &menu);
    QTest::qWait(50);
    EXPECT_TRUE(header.isSectionHidden(In::LastName - 1));
    EXPECT_EQ(Main().lvwActiveListView, &table);
    Main().mnuResetCol.Click();
    View(table).setFocus();
    QTest::keyClick(&View(table), Qt::Key_Down);
    EXPECT_FALSE(header.isSectionHidden(In::LastName - 1));
}

}  // namespace
}  // namespace swiftroll::test
