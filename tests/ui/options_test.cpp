// The options as a user sets them: buttons, fields and what they tell.
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

}  // namespace
}  // namespace swiftroll::test
