// The message bar above the lists.
#include <QToolButton>

#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Bar : public WindowTest {
  protected:
    QWidget& Whole() { return Find<QWidget>("messageBar"); }
    QString Said() { return Find<QLabel>("messageBarText").text(); }
};

TEST_F(Bar, ReadsAgainWithWhatItToldAndLeavesTheFocusAlone) {
    Start();
    EXPECT_FALSE(Whole().isVisible());
    Read(
        "0 @I1@ INDI\n1 NAME A /B/\n1 BIRT\n2 DATE @#DFRENCH R@ 3 NIVO 9\n1 DEAT\n1 BURI\n2 PLAC Lyon\n0 "
        "TRLR\n");
    ASSERT_TRUE(Whole().isVisible());
    EXPECT_EQ(Said(),
              QStringLiteral("1 date du calendrier républicain n'a pas été lue. 1 inhumation qui complète "
                             "un décès n'a pas été lue."));
    EXPECT_LT(Whole().y(), Window().Tabs().y());
    QWidget* const focus = Window().focusWidget();
    ASSERT_NE(focus, nullptr);
    EXPECT_FALSE(Whole().isAncestorOf(focus));
    QTest::keyClick(focus, Qt::Key_Escape);
    EXPECT_TRUE(Whole().isVisible()) << "Escape stops work, not the bar";

    OnBox(QMessageBox::No);
    Click("messageBarButton(0)");
    EXPECT_TRUE(Find<QCheckBox>("chkCalendars").isChecked());
    EXPECT_EQ(Main().lvwIn.Item(1).Cell(In::BirthMin), "1800");
    EXPECT_EQ(Said(), QStringLiteral("1 inhumation qui complète un décès n'a pas été lue."));
    EXPECT_FALSE(Find<QWidget>("messageBarButton(1)").isVisible());

    EXPECT_EQ(Find<QToolButton>("messageBarClose").accessibleName(), QStringLiteral("Fermer"));
    Click("messageBarClose");
    EXPECT_FALSE(Whole().isVisible());
}

TEST_F(Bar, ALongNoticeWrapsAndKeepsTheWindow) {
    Start();
    const QSize size = Window().size();
    const QString words = QStringLiteral("mot ").repeated(100);
    Main().messageBar.Show(this, {words.toStdString() + Text(400, 'x')});
    ShowTab(1);
    QTest::qWait(20);
    EXPECT_EQ(Window().size(), size);
    EXPECT_GT(Whole().height(), 2 * Find<QLabel>("messageBarText").fontMetrics().height());
    EXPECT_LE(Whole().width(), Window().width());
}

TEST_F(Bar, WhatWasMadeIsToldBesideAQuestionAndGoesByItself) {
    Start();
    Read("0 @I1@ INDI\n1 BIRT\n2 DATE @#DFRENCH R@ 3 NIVO 9\n0 TRLR\n");
    auto& told = Find<QWidget>("workNotice");
    EXPECT_TRUE(told.isVisible());
    EXPECT_TRUE(Whole().isVisible()) << "the question is not covered";
    EXPECT_EQ(Find<QLabel>("workNoticeText").text(), QStringLiteral("Fichier lu: 1 individu, 0 famille"));
    ShowTab(6);
    Click("cmdRecalcIn");
    EXPECT_FALSE(told.isVisible()) << "the next action";
    EXPECT_TRUE(Whole().isVisible());
    Click("cmdCalcOutput");
    ASSERT_TRUE(told.isVisible());
    auto* time = told.findChild<QTimer*>();
    ASSERT_NE(time, nullptr);
    EXPECT_TRUE(time->isActive());
    time->start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told.isVisible(); }, 1000));
    EXPECT_TRUE(Whole().isVisible());
}

TEST_F(Bar, ASearchWithoutResultIsToldInItsDialogToo) {
    StartWithFamily();
    QTest::keyClick(&View(Main().lvwIn), Qt::Key_F, Qt::ControlModifier);
    QTest::qWait(20);
    auto& answer = Find<QLabel>("lblNotFound");
    const QSize size = answer.window()->size();
    const std::pair<const char*, const char*> searches[] = {{"Absent", "Non trouvé !"}, {"Dupont", ""}};
    for (const auto& search : searches) {
        program_->ThePresenter().Act([&] {
            Main().findDialog.cboTextToFind[0].SetText(search.first);
            Main().findDialog.cboColumns[0].SetListIndex(In::LastName - 1);
        });
        Click("cmdFind");
        EXPECT_EQ(answer.text(), QString::fromUtf8(search.second));
        EXPECT_EQ(Find<QLabel>("pnlMessage").text(), answer.text());
        EXPECT_EQ(answer.window()->size(), size);
    }
}

}  // namespace
}  // namespace swiftroll::test
