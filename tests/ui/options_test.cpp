// The options as a user sets them: buttons, fields and what they tell.
#include <QDesktopServices>
#include <QTextBrowser>

#include "mnemonics.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Options : public WindowTest {
  protected:
    /// A button may be wider than its caption, which alone is pressed.
    static QPoint Place(const QWidget& widget) { return {8, widget.height() / 2}; }
    static void Press(QWidget& widget) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, Place(widget));
        QTest::qWait(20);  // as long as a finger needs
    }
    static void Release(QWidget& widget) {
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, Place(widget));
        QTest::qWait(20);
    }
    static void ClickSlowly(QWidget& widget) {
        Press(widget);
        Release(widget);
    }
    QRadioButton& Button(const char* group, int i) {
        return Find<QRadioButton>(
            (QString::fromLatin1(group) + QStringLiteral("(%1)").arg(i)).toLatin1().constData());
    }
};

TEST_F(Options, TheFirstClickOnAButtonOfAGroupChoosesIt) {
    Start();
    const struct {
        const char* group;
        int tab, count;
        const char* elsewhere;
    } groups[] = {{"optOutExtension", 6, 3, "txtPlaceFormat"},
                  {"optTabSpace", 6, 2, "txtPlaceFormat"},
                  {"optFullName", 7, 2, "txtKinWidth"}};
    for (const auto& [group, tab, count, elsewhere] : groups) {
        ShowTab(tab);
        for (int i = 0; i < count; ++i) {
            ClickSlowly(Button(group, (i + 1) % count));
            ClickSlowly(Find<QLineEdit>(elsewhere));
            Press(Button(group, i));
            EXPECT_TRUE(Button(group, i).hasFocus()) << group << i;
            Release(Button(group, i));
            EXPECT_TRUE(Button(group, i).isChecked()) << group << i;
        }
    }
}

TEST_F(Options, CaptionsAreGreyWhereTheirOptionsRest) {
    Start();
    ShowTab(6);
    const auto areIndexLabelsOn = [&] {
        int on = 0;
        for (const QLabel* label : Window().findChildren<QLabel*>()) {
            const bool isOfIndex = ui::PlainCaption(label->text()) == QStringLiteral("Index HTML") ||
                                   label->text() == QStringLiteral("caractère(s)");
            if (isOfIndex && label->isEnabled()) ++on;
        }
        return on;
    };
    EXPECT_EQ(areIndexLabelsOn(), 0) << "Texte";
    ClickSlowly(Button("optOutExtension", 2));
    EXPECT_EQ(areIndexLabelsOn(), 2);
    auto& stylesheet = Find<QCheckBox>("chkGenerXSL");
    const auto colour = [&] { return stylesheet.palette().color(QPalette::Active, QPalette::WindowText); };
    const QColor normal = colour();
    Click("chkGenerXSL");
    EXPECT_TRUE(stylesheet.isEnabled());
    EXPECT_EQ(colour(), QApplication::palette().color(QPalette::Disabled, QPalette::WindowText));
    Click("chkGenerXSL");
    EXPECT_EQ(colour(), normal);
    EXPECT_TRUE(Find<QLineEdit>("txtINDEX").toolTip().contains(QStringLiteral("%INDEX%")));
    EXPECT_EQ(Find<QListWidget>("lbOuputPlacesOrder").toolTipDuration(), 20000);
}

TEST_F(Options, AClickIntoATextSelectsItAndItsOwnMenuDoesNot) {
    Start();
    ShowTab(6);
    for (const char* name : {"cboGedIn", "cboOutPlace"}) {
        QLineEdit& text = *Find<QComboBox>(name).lineEdit();
        ClickSlowly(text);
        EXPECT_EQ(text.selectedText(), text.text()) << name;
        EXPECT_FALSE(text.text().isEmpty()) << name;
        ClickSlowly(text);
        EXPECT_FALSE(text.hasSelectedText()) << name << ": the second click places the cursor";
    }
    // The hand shakes a little.
    auto& format = Find<QLineEdit>("txtPlaceFormat");
    const QPoint start(6, format.height() / 2);
    QTest::mousePress(&format, Qt::LeftButton, {}, start);
    QTest::qWait(20);
    QTest::mouseMove(&format, start + QPoint(2, 0));
    QTest::mouseRelease(&format, Qt::LeftButton, {}, start + QPoint(2, 0));
    EXPECT_EQ(format.selectedText(), format.text());
    // A text that was left alone stays so when its own menu closes.
    QTest::mouseClick(&format, Qt::LeftButton, {}, start);
    ASSERT_FALSE(format.hasSelectedText());
    OnDialog([](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
    QContextMenuEvent menu(QContextMenuEvent::Mouse, start, format.mapToGlobal(start));
    QApplication::sendEvent(&format, &menu);
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return format.hasFocus(); }));
    QTest::qWait(20);
    EXPECT_FALSE(format.hasSelectedText());
}

TEST_F(Options, TheManualOpensAtWhatHasTheFocus) {
    Start();
    OpenOutputFiles();
    ShowTab(6);
    QTextBrowser reader;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &reader, "setSource");
    const std::pair<const char*, const char*> cases[] = {{"cboGedOut", "extrait.html"},
                                                         {"cboFileModel", "modeles.html"},
                                                         {"txtModelExtension(1)", "modeles.html"},
                                                         {"txtPlaceFormat", "releve.html"},
                                                         {"cboGedIn", "releve.html"}};
    for (const auto& [name, page] : cases) {
        auto& field = Find<QWidget>(name);
        ClickSlowly(field);
        QTest::keyClick(&field, Qt::Key_F1);
        EXPECT_EQ(reader.source().fileName().toStdString(), page) << name;
    }
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

TEST_F(Options, AnyKeyButF1ClosesTheAboutWindow) {
    Start();
    auto* about = Window().findChild<QDialog*>(QStringLiteral("frmSplash"));
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Down, Qt::Key_A, Qt::Key_Return}) {
        QTest::keyClick(&Window(), Qt::Key_F12);
        ASSERT_TRUE(QTest::qWaitForWindowActive(about));
        QWidget* const receiver = about->focusWidget() != nullptr ? about->focusWidget() : about;
        QTest::keyClick(receiver, key);
        QTest::qWait(20);
        EXPECT_FALSE(about->isVisible()) << key;
        about->hide();
    }
}

}  // namespace
}  // namespace swiftroll::test
