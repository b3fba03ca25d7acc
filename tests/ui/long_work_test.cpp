// What the user does while a file is read or paths are searched.
#include <QPushButton>

#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class LongWork : public WindowTest {
  protected:
    /// A file of so many couples in a row of generations, each with two children who marry cousins: long to
    /// read, and without end to search.
    static QByteArray ManyCousins(int generations);

    /// Runs `action` once, after the work has begun.
    void Meanwhile(std::function<bool()> hasBegun, std::function<void()> action) {
        auto* timer = new QTimer(&owner_);
        QObject::connect(timer, &QTimer::timeout, [timer, hasBegun, action] {
            if (!hasBegun()) return;
            timer->stop();
            action();
        });
        timer->start(1);
    }
    void ReadCousins() {
        Read(ManyCousins(40));
        for (const char* id : {"@A0@", "@A40@"}) {
            auto row = Main().lvwIn.Item(id);
            row.SetSelected(true);
        }
    }
    void StartSearch() {
        OnDialog([](QWidget& dialog) {
            QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdOK")), Qt::LeftButton);
        });
        Click("cmdFindPath");
    }
    QObject owner_;
};

QByteArray LongWork::ManyCousins(int generations) {
    // Each generation: A and B, siblings, marry C and D, siblings; A+C and B+D are the parents of the next.
    QByteArray people = "0 HEAD\n1 CHAR ANSI\n", families;
    const auto id = [](char line, int g) { return QByteArray("@") + line + QByteArray::number(g) + "@"; };
    for (int g = 0; g <= generations; ++g) {
        for (const char line : {'A', 'B', 'C', 'D'}) {
            people += "0 " + id(line, g) + " INDI\n1 NAME P" + QByteArray::number(g) + " /" + line +
                      "/\n1 SEX " + (line == 'A' || line == 'B' ? "M" : "F") + "\n";
        }
        if (g == generations) break;
        families += "0 " + id('F', g) + " FAM\n1 HUSB " + id('A', g) + "\n1 WIFE " + id('C', g) +
                    "\n1 CHIL " + id('A', g + 1) + "\n1 CHIL " + id('D', g + 1) + "\n";
        families += "0 " + id('G', g) + " FAM\n1 HUSB " + id('B', g) + "\n1 WIFE " + id('D', g) +
                    "\n1 CHIL " + id('B', g + 1) + "\n1 CHIL " + id('C', g + 1) + "\n";
    }
    return people + families + "0 TRLR\n";
}

TEST_F(LongWork, EscapeEndsASearchWithWholePathsAndTheListIsSeenGrowing) {
    Start();
    ReadCousins();
    int seenRows = 0;
    Meanwhile(
        [&] {
            seenRows = View(Main().lvwKinship).model()->rowCount();
            return seenRows > 0 || Main().lvwKinship.Count() > 1'000'000;
        },
        [this] { QTest::keyClick(&Window(), Qt::Key_Escape); });
    StartSearch();
    EXPECT_GT(seenRows, 0) << "the list is seen while it grows";
    EXPECT_TRUE(
        Find<QLabel>("pnlMessage").text().contains(QStringLiteral("liens de parenté trouvé(s) au total")));
    EXPECT_TRUE(Main().lvwKinship.Item(Main().lvwKinship.Count()).Text().size() > 0);
    EXPECT_TRUE(Find<QAbstractButton>("cmdDrawKinship").isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the wait cursor is gone";
}

TEST_F(LongWork, ASearchWithoutEndOffersTheNearestPathsOrItsEnd) {
    Start();
    ReadCousins();
    const auto press = [this](const char* button) {
        const auto find = [this, button] {
            return Window().findChild<QAbstractButton*>(QLatin1String(button));
        };
        QString said;
        Meanwhile([find] { return find() != nullptr && find()->isVisible(); },
                  [&, button] {
                      said = Find<QLabel>("messageBarText").text() + find()->text();
                      Click(button);
                  });
        StartSearch();
        return said;
    };
    const QString continues = QStringLiteral(" liens trouvés, la recherche continue.");
    EXPECT_TRUE(
        press("messageBarButton(0)").endsWith(continues + QStringLiteral("Afficher les 100 plus proches")));
    EXPECT_EQ(Find<QLabel>("messageBarText").text(), QStringLiteral("Les 100 plus proches"));
    EXPECT_EQ(Main().lvwPaths.Count(), 100);
    EXPECT_EQ(Main().lvwPaths.Item(100).Cell(Paths::Spouses), "000");

    EXPECT_TRUE(press("messageBarButton(1)").endsWith(continues + QStringLiteral("Arrêter")));
    EXPECT_FALSE(Find<QWidget>("messageBar").isVisible());
    // The offer comes at a thousand paths, or sooner on a slow machine.
    EXPECT_GT(Main().lvwPaths.Count(), 100) << "what was found stays";
}

TEST_F(LongWork, EscapeEndsARead) {
    Start();
    Meanwhile([this] { return Main().lvwIn.Count() > 0; },
              [this] { QTest::keyClick(&Window(), Qt::Key_Escape); });
    const QString file = Write(QStringLiteral("long.ged"), ManyCousins(30000));
    auto& combo = Find<QComboBox>("cboGedIn");
    combo.setFocus();
    combo.lineEdit()->selectAll();
    QTest::keyClicks(combo.lineEdit(), file);
    Click("cmdLoad");  // no question comes after a stopped read
    EXPECT_LT(Main().lvwIn.Count(), 120000);
    EXPECT_TRUE(Find<QAbstractButton>("cmdLoad").isEnabled());
    EXPECT_EQ(Find<QLabel>("pnlMessage").text(), QStringLiteral("Interrompu par l'utilisateur !"));
}

TEST_F(LongWork, ProgressAndStopAreSeenWhileWorkRunsAndStopEndsIt) {
    Start();
    auto& work = Find<QWidget>("workStatus");
    EXPECT_FALSE(work.isVisible());
    int height = 0;
    Meanwhile([this] { return Main().lvwIn.Count() > 0; },
              [&] {
                  EXPECT_TRUE(Find<QWidget>("ProgressBar1").isVisible());
                  height = Window().Tabs().height();
                  Click("cmdStop");
              });
    const QString file = Write(QStringLiteral("long.ged"), ManyCousins(30000));
    program_->ThePresenter().Act([&] { Main().cboGedIn.SetText(ui::FromQt(file)); });
    const int heightBefore = Window().Tabs().height();
    Click("cmdLoad");
    EXPECT_EQ(height, heightBefore) << "nothing jumps when work begins";
    EXPECT_LT(Main().lvwIn.Count(), 120000);
    EXPECT_FALSE(work.isVisible());
    EXPECT_TRUE(Find<QLabel>("workNoticeText").text().startsWith(QStringLiteral("Lecture interrompue: ")));
    EXPECT_EQ(Find<QLabel>("pnlMessage").text(), QStringLiteral("Interrompu par l'utilisateur !"));

    ReadCousins();
    Meanwhile([this] { return Main().lvwKinship.Count() > 0 && Find<QWidget>("cmdStop").isVisible(); },
              [this] { Click("cmdStop"); });
    StartSearch();
    EXPECT_TRUE(Find<QLabel>("workNoticeText").text().startsWith(QStringLiteral("Recherche interrompue: ")));
    EXPECT_FALSE(Find<QWidget>("cmdStop").isVisible());
}

TEST_F(LongWork, ManyLineErrorsCanBeAnsweredAtOnce) {
    Start();
    const auto press = [this](Qt::Key key, int times) {
        for (; times > 0; --times) OnDialog([key](QWidget& box) { QTest::keyClick(box.focusWidget(), key); });
    };
    press(Qt::Key_Return, 10);  // OK, beside the third button too
    OnDialog([](QWidget& box) {
        const auto label = [&] { return box.focusWidget()->property("text").toString(); };
        for (int i = 0; i < 3 && label() != QStringLiteral("OK pour tous"); ++i)
            QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
        QTest::keyClick(box.focusWidget(), Qt::Key_Space);
    });
    Read(QByteArray("prose\n").repeated(15) + kFamily);
    EXPECT_EQ(boxes.size(), 12) << "with the question of the recalculation";
    EXPECT_EQ(Main().lvwIn.Count(), 5);
    press(Qt::Key_Return, 9);
    press(Qt::Key_Escape, 1);
    Click("cmdLoad");
    EXPECT_EQ(Main().lvwIn.Count(), 0) << "the next read asks again, and Escape stops it";
}

TEST_F(LongWork, ClosingTheWindowInTheMiddleOfASearchEndsIt) {
    Start();
    ReadCousins();
    OnDialog([](QWidget& dialog) {
        QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    });
    OnBox(QMessageBox::Cancel);
    OnBox(QMessageBox::No);
    Meanwhile([this] { return Main().lvwKinship.Count() > 100; },
              [this] {
                  Window().close();  // Cancel: the search goes on
                  EXPECT_FALSE(Main().bEnded);
                  Window().close();
              });
    Click("cmdFindPath");
    EXPECT_TRUE(Main().bEnded);
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(LongWork, LeavingInTheMiddleOfAReadEndsIt) {
    Start();
    Meanwhile([this] { return Main().lvwIn.Count() > 0; }, [this] { Click("cmdExit"); });
    const QString file = Write(QStringLiteral("long.ged"), ManyCousins(30000));
    program_->ThePresenter().Act([&] { Main().cboGedIn.SetText(ui::FromQt(file)); });
    Click("cmdLoad");
    EXPECT_TRUE(Main().bEnded);
    EXPECT_FALSE(Window().isVisible());
}

}  // namespace
}  // namespace swiftroll::test
