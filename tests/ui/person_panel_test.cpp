// The panel of the current individual: its links by mouse and keys, the way back, folding, and the record.
#include <QAccessible>
#include <QFile>
#include <QPlainTextEdit>
#include <QToolButton>

#include "link_label.h"
#include "person_view.h"
#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class PersonPanelLife : public WindowTest {
  protected:
    static constexpr int kWide = 1300, kNarrow = 1000;
    void StartWide() {
        StartWithFamily();
        Window().resize(kWide, Window().height());
        Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
        QTest::qWait(20);
    }
    void ClickRow(int row) {
        QTest::mouseClick(View(Main().lvwIn).viewport(), Qt::LeftButton, {}, CellAt(Main().lvwIn, row, 1));
    }
    ui::PersonView& Panel() { return dynamic_cast<ui::PersonView&>(Find<QWidget>("personPanel")); }
    std::string Name() {
        return Panel().findChild<QLabel*>(QStringLiteral("personName"))->text().toStdString();
    }
    std::vector<ui::LinkLabel*> Links() {
        std::vector<ui::LinkLabel*> links;
        for (QLabel* label : Panel().findChildren<QLabel*>()) {
            if (auto* link = dynamic_cast<ui::LinkLabel*>(label)) links.push_back(link);
        }
        return links;
    }
};

TEST_F(PersonPanelLife, LinksAreFollowedByMouseAndKeysAndTheWayLeadsBack) {
    StartWide();
    ClickRow(4);
    EXPECT_EQ(Name(), "Dupont, Luc");
    ASSERT_EQ(Links().size(), 2u);
    auto* access = QAccessible::queryAccessibleInterface(Links()[0]);
    EXPECT_EQ(access->role(), QAccessible::Link);
    EXPECT_EQ(access->text(QAccessible::Name), QStringLiteral("Père : Dupont, Paul (1880-)"));
    QTest::mouseClick(Links()[0], Qt::LeftButton);
    QTest::qWait(20);
    EXPECT_EQ(Name(), "Dupont, Paul");
    EXPECT_EQ(Main().lvwIn.Current()->Text(), "@I3@");
    EXPECT_FALSE(Main().lvwIn.Item("@I3@").Checked());
    // On by keys: the focus has followed the link, and stands on the name.
    Links()[0]->setFocus();
    QTest::keyClick(Links()[0], Qt::Key_Return);
    QTest::qWait(20);
    EXPECT_EQ(Name(), "Dupont, Jean");
    ASSERT_NE(Window().focusWidget(), nullptr);
    EXPECT_EQ(Window().focusWidget()->objectName(), QStringLiteral("personName"));
    QTest::keyClick(Window().focusWidget(), Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(Name(), "Dupont, Paul");
    View(Main().lvwIn).setFocus();
    QTest::keyClick(&View(Main().lvwIn), Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(Name(), "Dupont, Luc");
    QTest::keyClick(&View(Main().lvwIn), Qt::Key_Home);
    EXPECT_EQ(Name(), "Dupont, Jean") << "the panel follows the list";
    EXPECT_EQ(Window().focusWidget(), &View(Main().lvwIn));
    Read("0 @I1@ INDI\n1 NAME <b>&amp;/X/\n0 TRLR\n");
    ClickRow(0);
    EXPECT_EQ(Name(), "X, <b>&amp;") << "no markup";
}

TEST_F(PersonPanelLife, ANarrowWindowFoldsItUntilTheUserOpensItAndTheNextStartKnowsHisWish) {
    StartWide();
    EXPECT_TRUE(Panel().isVisible());
    Window().resize(kNarrow, Window().height());
    QTest::qWait(20);
    EXPECT_FALSE(Panel().isVisible());
    Click("personUnfold");
    EXPECT_TRUE(Panel().isVisible());
    Window().resize(kWide, Window().height());
    QTest::qWait(20);
    QTest::keyClick(&View(Main().lvwIn), Qt::Key_F9);
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(Find<QWidget>("personUnfold").isVisible());
    Click("cmdExit");
    StartAgain();
    Window().resize(kWide, Window().height());
    QTest::qWait(20);
    EXPECT_FALSE(Panel().isVisible());
}

TEST_F(PersonPanelLife, F6LeadsFromPartToPartAndTabThroughTheLinks) {
    StartWide();
    ClickRow(4);
    const auto focused = [&] {
        QWidget* focus = Window().focusWidget();
        return focus == nullptr ? std::string() : focus->objectName().toStdString();
    };
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Window().focusWidget(), key, modifiers);
    };
    EXPECT_EQ(focused(), "lvwIn");
    press(Qt::Key_F6);
    EXPECT_EQ(focused(), "cmdPersonPanel");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "personName");
    press(Qt::Key_Tab);
    EXPECT_EQ(Window().focusWidget(), Links()[0]);
    press(Qt::Key_F6);
    EXPECT_EQ(focused(), "workNoticeClose") << "what was read is told";
    press(Qt::Key_F6);
    EXPECT_EQ(focused(), "pnlMessage");
    press(Qt::Key_F6, Qt::ShiftModifier);
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(Window().focusWidget(), Links()[0]) << "a part is entered where it was left";
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "lvwIn");
    // All around and back.
    std::vector<std::string> parts;
    for (int i = 0; i < 12 && (i == 0 || focused() != "lvwIn"); ++i) {
        press(Qt::Key_F6);
        parts.push_back(focused());
    }
    EXPECT_EQ(parts.back(), "lvwIn");
    EXPECT_GE(parts.size(), 6u);
}

TEST_F(PersonPanelLife, TheRecordIsShownOnDemandUntilTheFileChanges) {
    StartWide();
    ClickRow(0);
    auto& lines = Find<QPlainTextEdit>("personRecord");
    EXPECT_FALSE(lines.isVisible());
    Click("cmdPersonRecord");
    EXPECT_TRUE(lines.toPlainText().startsWith(QStringLiteral("0 @I1@ INDI\n1 NAME Jean /Dupont/")))
        << lines.toPlainText().toStdString();
    Write(QStringLiteral("famille.ged"), "0 TRLR\n");
    ClickRow(1);
    EXPECT_TRUE(lines.toPlainText().contains(QStringLiteral("a changé")))
        << lines.toPlainText().toStdString();
}

}  // namespace
}  // namespace swiftroll::test
