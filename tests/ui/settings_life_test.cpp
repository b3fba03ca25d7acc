// Two lives of the program: what the user set in the first one stands in the second.
#include <QFile>
#include <QPushButton>
#include <QTreeWidget>

#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Lives : public WindowTest {
  protected:
    /// Ends the program by its own command and starts it again.
    void Restart(const char* how = "cmdExit") {
        Click(how);
        ASSERT_TRUE(Main().bEnded);
        program_ = std::make_unique<ui::DesktopApplication>();
        Start();
    }
};

TEST_F(Lives, OptionsHistoriesColumnsAndPlacesSurvive) {
    Start();
    Read(kFamily);
    ShowTab(6);
    QTest::mouseClick(&Find<QRadioButton>("optOutExtension(2)"), Qt::LeftButton);
    auto& format = Find<QLineEdit>("txtPlaceFormat");
    format.setFocus();
    format.selectAll();
    format.insert(QStringLiteral("%1 é€"));
    auto& order = Find<QListWidget>("lbOuputPlacesOrder");
    order.setFocus();
    order.setCurrentRow(0);
    QTest::keyClick(&order, Qt::Key_Down, Qt::ControlModifier);
    ShowTab(8);
    Click("chkIgnoreCase");
    QHeaderView& header = View(Main().lvwOut).Header();
    header.moveSection(header.visualIndex(Out::Number - 1), 0);
    header.resizeSection(Out::LastName - 1, 240);
    Window().resize(Window().size() + QSize(0, 30));
    QTest::qWait(20);
    const QSize size = Window().size();

    Restart();
    EXPECT_TRUE(Find<QRadioButton>("optOutExtension(2)").isChecked());
    EXPECT_EQ(Find<QLineEdit>("txtPlaceFormat").text(), QStringLiteral("%1 é€"));
    EXPECT_EQ(Find<QListWidget>("lbOuputPlacesOrder").item(0)->text(), QStringLiteral("Décès"));
    EXPECT_FALSE(Find<QCheckBox>("chkIgnoreCase").isChecked());
    EXPECT_EQ(Find<QComboBox>("cboGedIn").currentText(), Path(QStringLiteral("famille.ged")));
    EXPECT_EQ(View(Main().lvwOut).Header().visualIndex(Out::Number - 1), 0);
    EXPECT_EQ(View(Main().lvwOut).Header().sectionSize(Out::LastName - 1), 240);
    EXPECT_EQ(Window().size(), size);
    EXPECT_EQ(Find<QPushButton>("cmdDrawKinship").text(), QStringLiteral("Ecrire Toutes +"))
        << "whatever it was";

    // "No" at the end keeps what was saved before.
    ShowTab(8);
    Click("chkDelAccents");
    OnBox(QMessageBox::No);
    Window().close();
    program_ = std::make_unique<ui::DesktopApplication>();
    Start();
    EXPECT_TRUE(Find<QCheckBox>("chkDelAccents").isChecked());
}

TEST_F(Lives, ColoursAndFontsComeBackThroughTheirSet) {
    Start();
    ShowTab(7);
    auto& names = Find<QComboBox>("cboCells");
    names.setFocus();
    QTest::keyClicks(names.lineEdit(), QStringLiteral("Mon style"));
    program_->ThePresenter().Act([this] {
        Main().cmdColorMale.SetColour(0x123456);
        Main().txtFont.SetText("DejaVu Sans|11|1|0|0|0|255");
        Main().txtKinWidth.SetText("222");
    });
    Click("cmdSaveCells");
    Restart();
    EXPECT_EQ(Main().cmdColorMale.Colour(), 0x123456u);
    EXPECT_EQ(Find<QLabel>("lblFont").text(), QStringLiteral("DejaVu Sans, 11 pt, Gras"));
    EXPECT_TRUE(Find<QLabel>("lblFont").font().bold());
    EXPECT_EQ(Find<QLineEdit>("txtKinWidth").text(), QStringLiteral("222"));
    EXPECT_EQ(Find<QComboBox>("cboCells").currentText(), QStringLiteral("Mon style"));
}

TEST_F(Lives, FavouritesLeadBackToTheirRows) {
    Start();
    Read(kFamily);
    ShowTab(0);
    QTest::mouseClick(View(Main().lvwIn).viewport(), Qt::LeftButton, {}, CellAt(Main().lvwIn, 3, 1));
    program_->ThePresenter().Act([this] { Main().mnuAddFavorite.Click(); });
    Restart();
    EXPECT_EQ(Find<QComboBox>("cboFavorites(0)").currentText(), QStringLiteral("@I4@^"));
    Read(kFamily);
    ShowTab(0);
    Click("cmdGotoFavorite");
    EXPECT_TRUE(Main().lvwIn.Item("@I4@").Look().Bold);
    EXPECT_EQ(Main().lvwIn.Item("@I4@").Look().ForeColor, 0xFF00FFu);
}

}  // namespace
}  // namespace swiftroll::test
