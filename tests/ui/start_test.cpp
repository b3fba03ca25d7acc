// The first minutes: the empty list, the first read, names that are proposed and doubted.
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QPushButton>
#include <map>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class FirstMinutes : public WindowTest {
  protected:
    QWidget& View() { return Find<QWidget>("startView"); }
    QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
    QString Input() { return Find<QComboBox>("cboGedIn").currentText(); }
    std::string Groups() {
        std::map<int, std::string> keys;
        for (const Column& column : Main().lvwOut.Columns()) keys[column.Position] = column.Key;
        std::string before;
        for (const auto& [position, key] : keys) {
            if (key == "Number") break;
            before += key + " ";
        }
        return before;
    }
    void Choose(const QString& file) {
        OnDialog([file](QWidget& dialog) {
            auto* chooser = qobject_cast<QFileDialog*>(&dialog);
            ASSERT_NE(chooser, nullptr);
            chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file);
            QMetaObject::invokeMethod(chooser, "accept");
        });
    }
    void Drop(QWidget& target, const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        const QPoint place(5, 5);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &drop);
        QTest::qWait(20);
    }
};

TEST_F(FirstMinutes, AFileIsChosenAndOneKeyReadsIt) {
    Start();
    ASSERT_TRUE(View().isVisible());
    EXPECT_FALSE(Button("startRead").isVisible()) << "no file has a name yet";
    const QString file = Write(QStringLiteral("arbre.ged"), kFamily);
    Choose(file);
    QTest::mouseClick(&Button("startChoose"), Qt::LeftButton);
    EXPECT_EQ(Input(), file);
    EXPECT_EQ(Button("startRead").text(), QStringLiteral("Lire « arbre.ged »"));
    ASSERT_EQ(Window().focusWidget(), &Button("startRead"));
    OnBox(QMessageBox::Yes);
    QTest::keyClick(Window().focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Main().lvwIn.Count(), 5);
    EXPECT_FALSE(View().isVisible());
    EXPECT_EQ(Groups(), "LastName Place DateMin DateMax ");
    EXPECT_EQ(Main().lvwOut.Item(1).Cell(Out::LastName), "Dupont");
}

TEST_F(FirstMinutes, TheFilesThatWereReadLastAreLinks) {
    Start();
    Read(kFamily);
    const QString other = Write(QStringLiteral("autre & fils.ged"), "0 @I1@ INDI\n1 NAME A /B/\n0 TRLR\n");
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    QLineEdit* input = Find<QComboBox>("cboGedIn").lineEdit();
    QTest::mouseClick(input, Qt::LeftButton);
    QTest::keySequence(input, QKeySequence::SelectAll);
    QTest::keyClicks(input, other);
    Click("cmdExit");
    StartAgain();
    ASSERT_TRUE(Button("startRecent(1)").isVisible());
    EXPECT_EQ(Button("startRecent(0)").toolTip(), other);
    OnBox(QMessageBox::No);
    QTest::mouseClick(&Button("startRecent(1)"), Qt::LeftButton);
    QTest::qWait(50);
    EXPECT_EQ(Input(), Path(QStringLiteral("famille.ged")));
    EXPECT_EQ(Main().lvwIn.Count(), 5);
    EXPECT_FALSE(View().isVisible());
}

TEST_F(FirstMinutes, AFileThatIsDroppedWaitsForOneClick) {
    const QString file = Write(QStringLiteral("arbre.ged"), kFamily);
    Start();
    Drop(*Button("startChoose").parentWidget(), file);
    EXPECT_EQ(Input(), file);
    EXPECT_EQ(Main().lvwIn.Count(), 0);
    OnBox(QMessageBox::No);
    QTest::mouseClick(&Button("startRead"), Qt::LeftButton);
    EXPECT_EQ(Main().lvwIn.Count(), 5);
}

TEST_F(FirstMinutes, AnOrderThatTheUserChoseOrSavedStays) {
    Start();
    QHeaderView& header = WindowTest::View(Main().lvwOut).Header();
    header.moveSection(header.visualIndex(Out::Number - 1), 1);
    const std::string chosen = Groups();
    Read(kFamily);
    EXPECT_EQ(Groups(), chosen);
    header.moveSection(header.visualIndex(Out::Number - 1), Out::Number - 1);
    const std::string schema = Groups();
    Click("cmdExit");
    StartAgain();
    Read(kFamily);
    EXPECT_EQ(Groups(), schema) << "it was saved so";
}

TEST_F(FirstMinutes, ADialogProposesTheNameOfTheGedcomFile) {
    Start();
    for (const char* name : {"cboSwiftOut", "cboGedOut"})
        EXPECT_TRUE(Find<QComboBox>(name).currentText().contains(QStringLiteral("/.")));
    Read(kFamily);
    OpenOutputFiles();
    const std::pair<const char*, const char*> cases[] = {{"cmdSelectDirGedOut", "famille.Extrait.ged"},
                                                         {"cmdSelectDirSwiftOut", "famille.txt"}};
    for (const auto& [command, name] : cases) {
        OnDialog([name = name](QWidget& dialog) {
            EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text().toStdString(),
                      name);
            qobject_cast<QFileDialog*>(&dialog)->reject();
        });
        Click(command);
    }
    EXPECT_TRUE(Find<QComboBox>("cboSwiftOut").currentText().endsWith(QStringLiteral("/.txt")))
        << "as it was";
}

TEST_F(FirstMinutes, AModelOfAnotherFormatIsMarked) {
    Start();
    OpenOutputFiles();
    auto& mark = Find<QWidget>("modelMark");
    EXPECT_FALSE(mark.isVisible());
    QLineEdit* edit = Find<QComboBox>("cboFileModel").lineEdit();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("/tmp/modele.HTML"));
    EXPECT_TRUE(mark.isVisible());
    EXPECT_EQ(mark.toolTip(), QStringLiteral("Ce fichier n'a pas l'extension « .txt » des modèles Texte : "
                                             "choisissez un autre modèle, ou un autre format."));
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("/tmp/modele.TXT"));
    EXPECT_FALSE(mark.isVisible());
}

}  // namespace
}  // namespace swiftroll::test
