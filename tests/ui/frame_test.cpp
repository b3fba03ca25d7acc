// The frame of the window: tool bar, group of the output files, tabs, sizes, theme.
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class FrameOfWindow : public WindowTest {
  protected:
    /// Whether a widget can be seen and reached in the window or in an open panel.
    bool IsReached(const char* name) { return Find<QWidget>(name).isVisible(); }
    void ResizeTo(int width) {
        Window().setMinimumSize(0, 0);
        Window().resize(width, Window().height());
        QTest::qWait(20);
    }
};

TEST_F(FrameOfWindow, WhatDoesNotFitWorksInThePanelOfTheToolBar) {
    Start();
    ResizeTo(500);
    auto& more = Find<QWidget>("moreCommands");
    ASSERT_TRUE(more.isVisible());
    EXPECT_TRUE(IsReached("cmdLoad"));
    for (const char* name : {"cmdDrawKinship", "cboDrawKinship", "cmdHelp", "cmdExit"}) {
        EXPECT_FALSE(IsReached(name)) << name;
    }
    // The keyboard opens the panel and chooses there.
    QString chosen;
    OnDialog([&](QWidget& panel) {
        EXPECT_TRUE(panel.isAncestorOf(&Find<QWidget>("cmdExit")));
        EXPECT_TRUE(IsReached("cmdExit"));
        EXPECT_EQ(QApplication::focusWidget()->parentWidget(), &panel);
        auto& formats = Find<QComboBox>("cboDrawKinship");
        EXPECT_TRUE(formats.isVisible());
        QTest::keyClick(&Find<QWidget>("cmdExit"), Qt::Key_Space);
    });
    more.setFocus();
    QTest::keyClick(&more, Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Main().bEnded; }));
}

TEST_F(FrameOfWindow, AWiderWindowTakesTheCommandsBackInTheirOrder) {
    Start();
    ResizeTo(500);
    ResizeTo(1500);
    EXPECT_FALSE(IsReached("moreCommands"));
    int x = -1;
    for (const char* name :
         {"cmdLoad", "cboLoad", "cmdCalcOutput", "cmdSaveSwift", "cboSaveSwift", "cmdSaveGed", "cmdFindPath",
          "cmdDrawKinship", "cboDrawKinship", "cmdPrintKinship", "cmdHelp", "cmdExit"}) {
        EXPECT_TRUE(IsReached(name)) << name;
        const int left = Find<QWidget>(name).mapTo(&Window(), QPoint()).x();
        EXPECT_GT(left, x) << name;
        x = left;
    }
    EXPECT_GT(x, 1300) << "the end of the program stands at the right";
    // A longer caption takes the room that it needs.
    OnDialog([](QWidget& popup) { QTest::keyClick(&popup, Qt::Key_Escape); });
    auto& actions = Find<QComboBox>("cboLoad");
    const int width = Find<QWidget>("cmdLoad").width();
    QTest::mouseClick(&actions, Qt::LeftButton);
    QTest::qWait(50);
    actions.setFocus();
    QTest::keyClick(&actions, Qt::Key_Down);
    QTest::qWait(20);
    EXPECT_EQ(Find<QAbstractButton>("cmdLoad").text(), QStringLiteral("Lire Sans Famille"));
    EXPECT_GT(Find<QWidget>("cmdLoad").width(), width);
}

TEST_F(FrameOfWindow, TheOutputFilesFoldAndOpenWhenACommandNeedsAName) {
    Start();
    EXPECT_FALSE(IsReached("cboSwiftOut"));
    EXPECT_TRUE(IsReached("cboGedIn"));
    Click("chkOutputFiles");
    EXPECT_TRUE(IsReached("cboSwiftOut"));
    Click("cmdExit");
    StartAgain();
    EXPECT_TRUE(IsReached("cboGedOut")) << "the state is saved";
    auto& fold = Find<QWidget>("chkOutputFiles");
    fold.setFocus();
    QTest::keyClick(&fold, Qt::Key_Space);
    EXPECT_FALSE(IsReached("cboGedOut"));

    OnBox(QMessageBox::Yes);
    OnDialog([this](QWidget& dialog) {
        EXPECT_TRUE(IsReached("cboSwiftOut"));
        EXPECT_TRUE(Find<QWidget>("cboSwiftOut").isAncestorOf(Window().focusWidget()) ||
                    &Find<QWidget>("cboSwiftOut") == Window().focusWidget());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Click("cmdSaveSwift");
    EXPECT_TRUE(IsReached("cboSwiftOut"));
}

TEST_F(FrameOfWindow, FieldsAndPagesAreNoWiderThanCanBeRead) {
    Start();
    OpenOutputFiles();
    for (const int width : {800, 1900}) {
        ResizeTo(width);
        for (const char* name : {"cboGedIn", "cboGedOut", "cboSwiftOut", "cboFileModel", "cboKinship"}) {
            EXPECT_LE(Find<QWidget>(name).width(), 700) << name;
            EXPECT_GE(Find<QWidget>(name).width(), 300) << name;
        }
        for (int tab = 6; tab <= 8; ++tab) {
            ShowTab(tab);
            auto* area = qobject_cast<QScrollArea*>(Window().Tabs().currentWidget());
            const QRect frames = area->widget()->childrenRect();
            EXPECT_LE(frames.width(), 900) << tab;
            EXPECT_NEAR(frames.center().x(), area->widget()->rect().center().x(), 2) << tab;
        }
    }
}

TEST_F(FrameOfWindow, LargeLettersCutNothingOnTheOptions) {
    QFont large = QApplication::font();
    const QFont before = large;
    large.setPointSizeF(14);
    QApplication::setFont(large);
    Start();
    ResizeTo(1300);
    for (int tab = 6; tab <= 8; ++tab) {
        ShowTab(tab);
        const auto* area = qobject_cast<QScrollArea*>(Window().Tabs().currentWidget());
        const auto cut = [area] {
            for (const auto* button : area->findChildren<QAbstractButton*>()) {
                const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
                if (button->isVisible() && button->width() < text) return button->objectName().toStdString();
            }
            return std::string();
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return cut().empty(); })) << cut();
    }
    QApplication::setFont(before);
}

TEST_F(FrameOfWindow, AGapSetsTheOptionsApartAndChoosesNothing) {
    Start();
    QTabBar& bar = *Window().Tabs().tabBar();
    ShowTab(2);
    const QRect first = bar.tabRect(6);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(first.left() + 6, first.center().y()));
    EXPECT_EQ(Window().Tabs().currentIndex(), 2);
    ShowTab(6);
    EXPECT_EQ(Main().SSTab1, Tab::FormatOptions);
}

TEST_F(FrameOfWindow, TheFirstSizeFitsTheScreenAndTheSmallestIsSmall) {
    Start();
    const QSize screen = Window().screen()->availableSize();
    EXPECT_LE(Window().width(), screen.width());
    EXPECT_LE(Window().height(), screen.height());
    EXPECT_GT(Window().height(), 700) << "there is room";
    EXPECT_LE(Window().minimumHeight(), 520);
    EXPECT_LE(Window().minimumWidth(), screen.width());
}

TEST_F(FrameOfWindow, OneAccentFollowsTheThemeAndBoxesHaveTheProgramsSigns) {
    Start();
    const QPalette before = QApplication::palette();
    const auto contrast = [](const QColor& a, const QColor& b) {
        const auto light = [](const QColor& c) {
            const auto part = [](qreal v) {
                return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * part(c.redF()) + 0.7152 * part(c.greenF()) + 0.0722 * part(c.blueF()) + 0.05;
        };
        return std::max(light(a) / light(b), light(b) / light(a));
    };
    for (const QColor& ground : {QColor(239, 239, 239), QColor(40, 42, 46)}) {
        QPalette theme(ground);
        QApplication::setPalette(theme);
        EXPECT_TRUE(QTest::qWaitFor([this] {
            return std::abs(Window().palette().color(QPalette::Highlight).hslHue() - 198) <= 6;
        })) << "teal";
        const QPalette shown = Window().palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            EXPECT_GT(contrast(shown.color(group, QPalette::Highlight),
                               shown.color(group, QPalette::HighlightedText)),
                      4.5);
        }
        EXPECT_GT(contrast(shown.color(QPalette::Link), shown.color(QPalette::Base)), 4.5);
    }
    QApplication::setPalette(before);
    OnDialog([](QWidget& box) {
        const QStyle& style = *box.style();
        for (auto* button : box.findChildren<QPushButton*>()) {
            EXPECT_FALSE(button->icon().isNull()) << button->text().toStdString();
            EXPECT_EQ(button->icon().name(), QString()) << "not one of the desktop";
        }
        EXPECT_FALSE(style.standardIcon(QStyle::SP_MessageBoxWarning).isNull());
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    Click("cmdSaveSwift");
}

}  // namespace
}  // namespace swiftroll::test
