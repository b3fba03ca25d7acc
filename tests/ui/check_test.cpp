// The window of what is wrong in a file, from the menu to the person that it leads to.
#include <QClipboard>
#include <QMenu>
#include <QPushButton>
#include <QTableView>

#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class CheckWindow : public WindowTest {};

TEST_F(CheckWindow, ShowsFindingsByKindAndLeadsToTheirPeople) {
    Start();
    auto* command = Window().findChild<QAction*>(QStringLiteral("mnuCheckFile"));
    ASSERT_NE(command, nullptr);
    EXPECT_FALSE(command->isEnabled()) << "nothing was read";
    QByteArray family = kFamily;
    Read(family.replace("1 BIRT\n2 DATE 1880", "1 BIRT\n2 DATE 1840")
             .replace("1 SEX F\n1 FAMS @F2@", "1 FAMS @F2@"));
    command->trigger();
    auto* dialog = Window().findChild<QDialog*>(QStringLiteral("frmCheck"));
    ASSERT_TRUE(dialog->isVisible());
    auto& table = *dialog->findChild<QTableView*>(QStringLiteral("findings"));
    const auto cell = [&](int row, int column) {
        return table.model()->index(row, column).data().toString();
    };
    ASSERT_EQ(table.model()->rowCount(), 4) << "the character set, two young parents, a person without sex";
    EXPECT_EQ(cell(1, 3), QStringLiteral("@I3@"));
    EXPECT_EQ(cell(3, 3), QStringLiteral("@I4@"));

    // One kind alone, and its person in the list.
    auto& kinds = *dialog->findChild<QComboBox*>(QStringLiteral("cboKind"));
    kinds.setFocus();
    while (!kinds.currentText().startsWith(QStringLiteral("21."))) QTest::keyClick(&kinds, Qt::Key_Down);
    EXPECT_EQ(kinds.currentText(), QStringLiteral("21. Individu sans sexe (1)"));
    ASSERT_EQ(table.model()->rowCount(), 1);
    const QPoint row = table.visualRect(table.model()->index(0, 5)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(Main().lvwIn.Current().value().Key(), "@I4@");
    EXPECT_TRUE(Main().lvwIn.Current()->Checked());
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("\t@I4@\tDurand, Marie\t")));

    // The file goes: this is told, and the findings stay.
    QFile::remove(Path(QStringLiteral("famille.ged")));
    OnBox(QMessageBox::Ok);
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("cmdCheckAgain")), Qt::LeftButton);
    EXPECT_TRUE(boxes.last().contains(QStringLiteral("ne peut plus être lu"))) << boxes.last().toStdString();
    EXPECT_EQ(table.model()->rowCount(), 1);
}

}  // namespace
}  // namespace swiftroll::test
