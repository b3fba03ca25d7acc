// The drawing of the current path beside its rows.
#include <QAccessible>
#include <QSplitter>
#include <QWheelEvent>

#include "kinship_view.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Picture : public WindowTest {
  protected:
    void StartWithPath() {
        Start();
        Read(kFamily);
        program_->ThePresenter().Act([this] {
            Main().kinshipRequest.FindPathBetween("@I1@", "@I5@");
            Main().cboDrawKinship.SetListIndex(2);
        });
        ShowTab(5);
    }
    void ClickRow(int row) {
        QTest::mouseClick(View(Main().lvwKinship).viewport(), Qt::LeftButton, {},
                          CellAt(Main().lvwKinship, row, 0));
    }
    ui::KinshipView& Drawing() { return *dynamic_cast<ui::KinshipView*>(&Find<QWidget>("kinshipView")); }
    Text Current() { return Drawing().Picture().IndividualIn(Drawing().CurrentBox()); }
    void Wheel(int steps) {
        const QPointF middle = Drawing().rect().center();
        QWheelEvent event(middle, Drawing().mapToGlobal(middle), {}, QPoint(0, 120 * steps), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Drawing(), &event);
    }
};

TEST_F(Picture, FollowsTheRowTheOptionsAndTheFile) {
    StartWithPath();
    EXPECT_TRUE(Drawing().Picture().IsEmpty()) << "no row is the current one";
    ClickRow(0);
    ASSERT_EQ(Drawing().Picture().BoxCount(), 3);
    EXPECT_EQ(Current(), "@I1@");
    ClickRow(1);
    EXPECT_EQ(Current(), "@I3@");
    QTest::mouseClick(View(Main().lvwPaths).viewport(), Qt::LeftButton, {}, CellAt(Main().lvwPaths, 0, 0));
    EXPECT_EQ(Current(), "@I1@") << "the summary of a path leads to its first person";
    ASSERT_EQ(Drawing().Picture().BoxCount(), 3);
    const auto height = Drawing().Picture().Height();
    program_->ThePresenter().Act([this] { Main().lvwKinship.SortBy(Kinship::Indi, 1); });
    EXPECT_EQ(Drawing().Picture().Height(), height) << "in whatever order";
    program_->ThePresenter().Act([this] { Main().cboDrawKinship.SetListIndex(3); });
    EXPECT_EQ(Drawing().Picture().BoxCount(), 5) << "with the spouses";
    EXPECT_EQ(Main().txtKinH.Get(), "50") << "and no option changes";
    program_->ThePresenter().Act([this] { Main().txtKinshipLandscape.SetChecked(false); });
    EXPECT_NE(Drawing().Picture().Height(), height);
    program_->ThePresenter().Act([this] { Main().txtKinWidth.SetText("wide"); });
    EXPECT_TRUE(Drawing().Picture().IsEmpty());
    program_->ThePresenter().Act([this] { Main().txtKinWidth.SetText("150"); });
    EXPECT_FALSE(Drawing().Picture().IsEmpty());
    Read(kFamily);
    ShowTab(5);
    EXPECT_TRUE(Drawing().Picture().IsEmpty());
    EXPECT_TRUE(boxes.filter(QStringLiteral("Erreur")).isEmpty());
}

TEST_F(Picture, IsWalkedZoomedAndDraggedAndLeadsToThePeople) {
    StartWithPath();
    ClickRow(0);
    Window().activateWindow();
    Drawing().setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return Drawing().hasFocus(); }));
    QTest::keyClick(&Drawing(), Qt::Key_Down);
    EXPECT_EQ(Current(), "@I3@");
    QTest::keyClick(&Drawing(), Qt::Key_Left);
    EXPECT_EQ(Current(), "@I3@") << "nobody there";
    auto* access = QAccessible::queryAccessibleInterface(&Drawing());
    ASSERT_EQ(access->childCount(), 3);
    EXPECT_EQ(access->child(1)->text(QAccessible::Name), QStringLiteral("Paul, DUPONT, °1880  Lyon, @I3@"));
    EXPECT_TRUE(access->child(1)->state().focused);

    const QRect whole = Drawing().PlaceOf(2);
    Wheel(2);
    EXPECT_GT(Drawing().PlaceOf(2).width(), whole.width());
    QTest::mouseDClick(&Drawing(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(Drawing().PlaceOf(2), whole);
    QTest::mousePress(&Drawing(), Qt::LeftButton, {}, whole.center());
    QTest::mouseMove(&Drawing(), whole.center() + QPoint(-40, -30));
    QTest::mouseRelease(&Drawing(), Qt::LeftButton, {}, whole.center() + QPoint(-40, -30));
    EXPECT_EQ(Drawing().PlaceOf(2).topLeft(), whole.topLeft() + QPoint(-40, -30));
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    EXPECT_EQ(Main().SSTab1, Tab::Kinship) << "a drag is no click";

    QTest::mouseClick(&Drawing(), Qt::LeftButton, {}, Drawing().PlaceOf(2).center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Main().SSTab1 == Tab::In; }));
    EXPECT_EQ(Main().lvwIn.Current()->Text(), "@I5@");
}

TEST_F(Picture, KeepsItsShareOfTheTab) {
    StartWithPath();
    Window().resize(1400, 700);
    auto* splitter = qobject_cast<QSplitter*>(Drawing().parentWidget());
    QWidget* handle = splitter->handle(1);
    const int width = Drawing().width();
    EXPECT_NEAR(width, splitter->width() * 0.4, 10);
    QTest::mousePress(handle, Qt::LeftButton, {}, handle->rect().center());
    QTest::mouseMove(handle, handle->rect().center() + QPoint(-60, 0));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, handle->rect().center());
    EXPECT_NEAR(Drawing().width(), width + 60, 10);
    const Text share = Main().txtPictureShare.Get();
    EXPECT_NE(share, "400");
    program_->ThePresenter().Act([this] { Main().txtPictureShare.SetText("250"); });
    EXPECT_NEAR(Drawing().width(), splitter->width() * 0.25, 10) << "as the settings of the last run";
}

TEST_F(Picture, StandsBesideTheListOrBelowIt) {
    StartWithPath();
    auto* splitter = qobject_cast<QSplitter*>(Drawing().parentWidget());
    Window().resize(1300, 560);
    EXPECT_TRUE(QTest::qWaitFor([&] { return splitter->orientation() == Qt::Horizontal; }));
    Window().resize(Window().width(), Window().height() + 900);
    EXPECT_TRUE(QTest::qWaitFor([&] { return splitter->orientation() == Qt::Vertical; }));
}

}  // namespace
}  // namespace swiftroll::test
