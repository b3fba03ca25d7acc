// Opening files with the program that the desktop has for them.
#include <QComboBox>
#include <QLineEdit>

#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Opening : public WindowTest {
  protected:
    Opening() {
        Start();
        auto& combo = Find<QComboBox>("cboGedIn");
        QTest::mouseClick(combo.lineEdit(), Qt::LeftButton);
        combo.lineEdit()->selectAll();
        QTest::keyClicks(combo.lineEdit(), Write(QStringLiteral("a b.ged"), "0 HEAD\n"));
    }
    ~Opening() override { qputenv("PATH", path_); }
    /// Makes the desktop's launcher a script, in which $1 is what it is to open, or takes it away.
    void Install(const QByteArray& script) {
        const QString file = Write(QStringLiteral("xdg-open"), "#!/bin/sh\n" + script);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
        qputenv("PATH", Path({}).toLocal8Bit() + ":" + path_);
    }
    void TakeAway() { qputenv("PATH", Path({}).toLocal8Bit()); }
    QString Box(int number) const {
        return QStringLiteral("Erreur d'ouverture du Fichier :\r\n%1\r\nErreur = %2")
            .arg(Path(QStringLiteral("a b.ged")))
            .arg(number);
    }

  private:
    QByteArray path_ = qgetenv("PATH");
};

TEST_F(Opening, FailuresOfTheLauncherAreTold) {
    OnBox(QMessageBox::Ok);
    Install("exit 4");
    Click("cmdDisplayGedIn");
    EXPECT_EQ(boxes.last(), Box(4));
    OnBox(QMessageBox::Ok);
    QFile::remove(Path(QStringLiteral("xdg-open")));
    TakeAway();
    Click("cmdDisplayGedIn");
    EXPECT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes.last(), Box(31)) << "no launcher";
}

TEST_F(Opening, AFileWithoutAProgramShowsItsFolder) {
    Install("[ -d \"$1\" ] || exit 3; echo \"$1\" > \"$1/opened\"");
    Click("cmdDisplayGedIn");
    EXPECT_TRUE(QFile::exists(Path(QStringLiteral("opened"))));
    EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Opening, TheWindowWorksWhileTheLauncherDoes) {
    Install("sleep 1; exit 4");
    int tab = -1;
    QTimer::singleShot(200, &Window(), [&] {
        ShowTab(8);
        tab = Window().Tabs().currentIndex();
        EXPECT_TRUE(boxes.isEmpty());
    });
    OnBox(QMessageBox::Ok);
    Click("cmdDisplayGedIn");
    EXPECT_EQ(tab, 8);
    EXPECT_EQ(boxes.last(), Box(4));
}

}  // namespace
}  // namespace swiftroll::test
