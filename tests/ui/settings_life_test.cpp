// Two lives of the program: what the user set in the first one stands in the second, and so do its windows.
#include <QAbstractItemView>
#include <QScreen>

#include "platform/settings_store.h"
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
        StartAgain();
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
    Window().resize(Window().size() - QSize(0, 30));
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
    EXPECT_EQ(Find<QAbstractButton>("cmdDrawKinship").text(), QStringLiteral("Ecrire Toutes +"))
        << "whatever it was";

    // "No" at the end keeps what was saved before.
    ShowTab(8);
    Click("chkDelAccents");
    OnBox(QMessageBox::No);
    Window().close();
    StartAgain();
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

class Places : public WindowTest {
  protected:
    /// Closes the window by its cross, saves, and starts the program again.
    void Restart() {
        OnBox(QMessageBox::Yes);
        Window().close();
        ASSERT_TRUE(Main().bEnded);
        StartAgain();
    }
    SettingsStore::Pairs Stored(TextView section) {
        return platform::SettingsFile(platform::UserFolders().Settings()).GetAllSettings(section);
    }
    void Type(const char* combo, const QString& text) {
        QLineEdit* edit = Find<QComboBox>(combo).lineEdit();
        QTest::mouseClick(edit, Qt::LeftButton);
        QTest::keySequence(edit, QKeySequence::SelectAll);
        QTest::keyClicks(edit, text);
    }
    /// Opens the dialog of the search with two people, and gives its place.
    QRect KinshipPlace(const std::function<void(QWidget&)>& look = {}) {
        QRect place;
        Read(kFamily);
        ShowTab(0);
        QTest::mouseClick(View(Main().lvwIn).viewport(), Qt::LeftButton, {}, CellAt(Main().lvwIn, 0, 1));
        QTest::mouseClick(View(Main().lvwIn).viewport(), Qt::LeftButton, Qt::ControlModifier,
                          CellAt(Main().lvwIn, 4, 1));
        OnDialog([&](QWidget& dialog) {
            if (look) look(dialog);
            place = QRect(dialog.pos(), dialog.size());
            QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdCancel")), Qt::LeftButton);
        });
        Click("cmdFindPath");
        return place;
    }
};

TEST_F(Places, ATypedNameIsKeptWhenTheWindowIsClosed) {
    Start();
    OpenOutputFiles();
    Type("cboGedOut", Path(QStringLiteral("extrait neuf.ged")));
    Restart();
    EXPECT_EQ(Find<QComboBox>("cboGedOut").currentText(), Path(QStringLiteral("extrait neuf.ged")));
}

TEST_F(Places, TheDialogOfTheSearchComesBackToItsPlace) {
    Start();
    KinshipPlace([](QWidget& dialog) {
        dialog.move(123, 75);
        QTest::qWait(20);
    });
    Restart();
    const auto stored = Stored("Settings\\frmKinshipSelect");
    EXPECT_EQ(stored.size(), 4u);
    // A life in which it is never shown.
    Restart();
    EXPECT_EQ(Stored("Settings\\frmKinshipSelect"), stored);
    EXPECT_EQ(KinshipPlace().topLeft(), QPoint(123, 75));
}

TEST_F(Places, AWindowIsMaximisedAgainAndFindsItsFormerSize) {
    Start();
    Window().move(0, 45);
    Window().resize(Window().width(), 720);
    QTest::qWait(20);
    const QRect normal(Window().pos(), Window().size());
    Window().showMaximized();
    QTest::qWait(20);
    for (int life = 0; life < 2; ++life) {
        Restart();
        QTest::qWait(20);
        EXPECT_TRUE(Window().isMaximized());
    }
    Window().showNormal();
    QTest::qWait(20);
    EXPECT_EQ(QRect(Window().pos(), Window().size()), normal);
    Restart();
    EXPECT_FALSE(Window().isMaximized());
    EXPECT_EQ(Stored("Settings\\frmMain").size(), 4u);
}

TEST_F(Places, AWindowLargerThanTheScreenIsFittedToIt) {
    Start();
    Window().move(30, 45);
    Window().resize(3000, 2000);
    QTest::qWait(20);
    Restart();
    const QRect screen = Window().screen()->availableGeometry();
    EXPECT_EQ(Window().pos(), screen.topLeft());
    EXPECT_EQ(Window().width(), std::max(screen.width(), Window().minimumWidth()));
    EXPECT_LE(Window().height(), screen.height());
    EXPECT_GT(Window().height(), screen.height() - 100);
}

TEST_F(Places, AWidthThatCannotBeReadIsKeptUntilTheUserChangesIt) {
    Start();
    Restart();
    platform::SettingsFile(platform::UserFolders().Settings())
        .SaveSetting("Settings\\frmMain", "WinWidth", "large");
    const auto width = [&] {
        for (const auto& [key, value] : Stored("Settings\\frmMain")) {
            if (key == "WinWidth") return value;
        }
        return Text();
    };
    OnBox(QMessageBox::No);
    Window().close();
    program_ = std::make_unique<ui::DesktopApplication>();
    OnBox(QMessageBox::Ok);
    Start();
    EXPECT_TRUE(boxes.last().contains(QStringLiteral("Settings\\frmMain/WinWidth")));
    OnBox(QMessageBox::Yes);
    Window().close();
    EXPECT_EQ(width(), "large");
    program_ = std::make_unique<ui::DesktopApplication>();
    OnBox(QMessageBox::Ok);
    Start();
    QTest::qWait(20);
    Window().resize(Window().size() + QSize(15, 0));
    QTest::qWait(20);
    const int chosen = Window().width();
    OnBox(QMessageBox::Yes);
    Window().close();
    EXPECT_EQ(width(), std::to_string(chosen * 15));
}

TEST_F(Places, AnOpenListIsAsWideAsItsLongestItem) {
    Start();
    OpenOutputFiles();
    Type("cboGedOut", Path(QString(40, QLatin1Char('W'))));
    Type("cboSwiftOut", Path(QString(400, QLatin1Char('W'))));
    Type("cboKinship", Path(QStringLiteral("k.html")));
    // The last list is that of a selector that is no wider than its arrow.
    for (const char* name : {"cboGedOut", "cboSwiftOut", "cboLoad"}) {
        auto& combo = Find<QComboBox>(name);
        const int screen = combo.screen()->availableGeometry().width();
        OnDialog([&](QWidget& popup) {
            auto* list = popup.findChild<QAbstractItemView*>();
            const int longest = list->sizeHintForColumn(0);
            EXPECT_EQ(longest > screen, &combo == &Find<QComboBox>("cboSwiftOut")) << name;
            EXPECT_GT(longest, combo.width()) << name;
            EXPECT_GE(list->viewport()->width(), std::min(longest, screen - 20)) << name;
            EXPECT_LE(popup.width(), screen) << name;
            EXPECT_GE(popup.x(), 0) << name;
            QTest::keyClick(list, Qt::Key_Escape);
        });
        QTest::mouseClick(&combo, Qt::LeftButton, {}, QPoint(combo.width() - 8, combo.height() / 2));
        QTest::qWait(100);
    }
}

}  // namespace
}  // namespace swiftroll::test
