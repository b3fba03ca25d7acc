// What users do from the first start to the files that they wanted.
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QMenu>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Journey : public WindowTest {};

QByteArray Content(const QString& file) {
    QFile content(file);
    return content.open(QIODevice::ReadOnly) ? content.readAll() : QByteArray();
}

/// Chooses a file in the file dialog that stands there.
void ChooseFile(QWidget& dialog, const QString& file) {
    auto* chooser = qobject_cast<QFileDialog*>(&dialog);
    ASSERT_NE(chooser, nullptr) << dialog.metaObject()->className() << dialog.windowTitle().toStdString();
    chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file);
    QMetaObject::invokeMethod(chooser, "accept");
}

TEST_F(Journey, ANewcomerReadsAFileMovesAColumnAndWritesTheList) {
    Start();
    const QString file = Write(QStringLiteral("arbre.ged"), kFamily);
    OnDialog([&](QWidget& dialog) { ChooseFile(dialog, file); });
    Click("cmdSelectDirGedIn");
    EXPECT_EQ(Find<QComboBox>("cboGedIn").currentText(), file);
    OnBox(QMessageBox::Yes);  // the list is computed with it
    Click("cmdLoad");
    EXPECT_EQ(Window().Tabs().currentIndex(), 1);
    EXPECT_EQ(Main().lvwOut.Count(), 3) << "one group for each name and place";
    EXPECT_EQ(Find<QLabel>("pnlMessage").text(), QString());

    // Two columns to the left of the count give surnames and places alone.
    QHeaderView& header = View(Main().lvwOut).Header();
    header.moveSection(header.visualIndex(Out::ID - 1), header.count() - 1);
    EXPECT_EQ(Main().lvwOut.ColumnAt(Out::ID).Position, Main().lvwOut.ColumnCount());
    header.moveSection(header.visualIndex(Out::Place - 1), 0);
    Click("cmdCalcOutput");
    EXPECT_EQ(RowsOf(Main().lvwOut).size(), 3u);

    // HTML, where the program begins with text.
    ShowTab(6);
    QTest::mouseClick(&Find<QRadioButton>("optOutExtension(0)"), Qt::LeftButton);
    EXPECT_EQ(Find<QAbstractButton>("cmdSaveSwift").text(), QStringLiteral("Ecrire en HTML"));
    const QString list = Path(QStringLiteral("releve.html"));
    OnBox(QMessageBox::Yes);  // all rows
    OnDialog([&](QWidget& dialog) { ChooseFile(dialog, list); });
    Click("cmdSaveSwift");
    EXPECT_TRUE(Content(list).contains("Dupont")) << Content(list).left(300).toStdString();

    // Once more over the same file: the question comes, and No leads back to the dialog.
    OnBox(QMessageBox::Yes);
    OnDialog([&](QWidget& dialog) { ChooseFile(dialog, list); });
    OnBox(QMessageBox::No);
    OnDialog([&](QWidget& dialog) { qobject_cast<QFileDialog*>(&dialog)->reject(); });
    Click("cmdSaveSwift");
    EXPECT_TRUE(boxes.last().contains(QStringLiteral("Voulez-vous l'écraser ?")))
        << boxes.last().toStdString();
}

TEST_F(Journey, TwoMarkedRowsLeadToADrawing) {
    StartWithFamily();
    QTest::mouseClick(View(Main().lvwIn).viewport(), Qt::LeftButton, {}, CellAt(Main().lvwIn, 0, 1));
    QTest::mouseClick(View(Main().lvwIn).viewport(), Qt::LeftButton, Qt::ControlModifier,
                      CellAt(Main().lvwIn, 4, 1));
    OnDialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("frmKinshipSelect"));
        auto* first = dialog.findChild<QLineEdit*>(QStringLiteral("txtKinshipSelection(2)"));
        EXPECT_TRUE(first->text().startsWith(QStringLiteral("@I1@"))) << first->text().toStdString();
        QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    });
    Click("cmdFindPath");
    EXPECT_EQ(Window().Tabs().currentIndex(), 5);
    EXPECT_GT(Main().lvwKinship.Count(), 2);
    // The tab that came to the front is the one that is worked with.
    EXPECT_EQ(Window().focusWidget(), &View(Main().lvwKinship));
    EXPECT_TRUE(Find<QComboBox>("cboFavorites(5)").isVisible());
    EXPECT_TRUE(Find<QWidget>("cmdPrintKinship").isEnabled());
    QTest::mouseDClick(&Find<QLabel>("pnlMessage"), Qt::LeftButton);
    EXPECT_TRUE(Find<QLabel>("pnlMessage").text().startsWith(QStringLiteral("0 \"Parenté(s)\"")))
        << Find<QLabel>("pnlMessage").text().toStdString();
    EXPECT_EQ(View(Main().lvwKinship).model()->rowCount(), Main().lvwKinship.Count());
    const QString page = Path(QStringLiteral("parente.html"));
    OnBox(QMessageBox::Yes);  // sizes that differ from the gaps
    OnDialog([&](QWidget& dialog) { ChooseFile(dialog, page); });
    Click("cmdDrawKinship");
    EXPECT_TRUE(Content(page).contains("DUPONT"));
}

}  // namespace
}  // namespace swiftroll::test
