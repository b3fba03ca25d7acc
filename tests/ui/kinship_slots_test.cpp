// The slots for two people above the list of paths, filled by keys, by a menu and by a drag.
#include <QDrag>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class KinshipSlots : public WindowTest {
  protected:
    std::string Slot(const char* name) { return Find<QLineEdit>(name).text().toStdString(); }
    /// The individuals of the paths that were found.
    std::string Path() {
        std::string ids;
        for (int i = 1; i <= Main().lvwKinship.Count(); ++i)
            ids += Main().lvwKinship.Item(i).Cell(Kinship::IDIndi);
        return ids;
    }
};

TEST_F(KinshipSlots, TwoPeopleAreNamedAndSearchedByKeysAlone) {
    StartWithFamily();
    ShowTab(static_cast<int>(Tab::Kinship));
    auto& from = Find<QLineEdit>("txtFrom");
    from.setFocus();
    OnDialog([&](QWidget& popup) {
        QTest::keyClick(&popup, Qt::Key_Down);
        QTest::keyClick(&popup, Qt::Key_Return);
    });
    QTest::keyClicks(&from, QStringLiteral("dupont l"));
    QTest::qWait(50);
    EXPECT_EQ(Slot("txtFrom"), "Dupont, Luc (1910-) @I5@") << "a place is no name";
    EXPECT_EQ(Path(), "") << "the key chose a person";
    // What a single person has needs no choice; what several have is asked for.
    auto& to = Find<QLineEdit>("txtTo");
    to.setFocus();
    OnDialog([](QWidget& popup) { QTest::keyClick(&popup, Qt::Key_Escape); });
    QTest::keyClicks(&to, QStringLiteral("du"));
    QTest::qWait(50);
    OnBox(QMessageBox::Ok);
    Click("cmdFindPair");
    EXPECT_TRUE(boxes.last().contains(QStringLiteral("plusieurs"))) << boxes.last().toStdString();
    EXPECT_EQ(Window().focusWidget(), &to);
    to.selectAll();
    OnDialog([](QWidget& popup) { QTest::keyClick(&popup, Qt::Key_Escape); });
    QTest::keyClicks(&to, QStringLiteral("1855"));
    QTest::qWait(50);
    QTest::keyClick(&to, Qt::Key_Return);
    QTest::qWait(50);
    EXPECT_EQ(Slot("txtTo"), "Martin, Anne (1855-) @I2@");
    EXPECT_EQ(Path().substr(0, 4), "@I5@");
    EXPECT_NE(Path().find("@I2@"), std::string::npos);
    EXPECT_EQ(Window().focusWidget(), &View(Main().lvwKinship));
    Click("cmdSwapPair");
    Click("cmdFindPair");
    EXPECT_EQ(Path().substr(0, 4), "@I2@");
}

TEST_F(KinshipSlots, TakeAPersonFromTheMenuAndFromADrag) {
    StartWithFamily();
    Table& lvwIn = Main().lvwIn;
    QWidget* viewport = View(lvwIn).viewport();
    OnDialog([&](QWidget& popup) {
        auto* action = popup.findChild<QAction*>(QStringLiteral("mnuKinTo"));
        popup.close();
        action->trigger();
    });
    QTest::mouseClick(viewport, Qt::RightButton, {}, CellAt(lvwIn, 2, In::LastName - 1));
    QTest::qWait(50);
    EXPECT_EQ(Slot("txtTo"), "Dupont, Paul (1880-) @I3@");

    const QPoint start = CellAt(lvwIn, 0, In::FirstName - 1);
    QTest::mousePress(viewport, Qt::LeftButton, {}, start);
    QTest::mouseMove(viewport, start + QPoint(0, 40));
    const auto* drag = View(lvwIn).findChild<QDrag*>();
    ASSERT_NE(drag, nullptr);
    ShowTab(static_cast<int>(Tab::Kinship));
    auto& from = Find<QLineEdit>("txtFrom");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, {});
    QApplication::sendEvent(&from, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, {});
    QApplication::sendEvent(&from, &drop);
    EXPECT_EQ(Slot("txtFrom"), "Dupont, Jean (1850-) @I1@");
    Click("cmdFindPair");
    EXPECT_EQ(Path(), "@I1@@I3@");
}

}  // namespace
}  // namespace swiftroll::test
