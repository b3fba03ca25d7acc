// The summary above the kinship paths, and the window of all relatives of somebody.
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>

#include "tables/columns.h"
#include "text/literal.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class KinNames : public WindowTest {
  protected:
    void Press(Table& table, int row, int column) {
        QTest::mouseClick(View(table).viewport(), Qt::LeftButton, {}, CellAt(table, row, column));
    }
    std::string Message() { return Find<QLabel>("pnlMessage").text().toStdString(); }
    /// Chooses "Toute la parenté..." for a row of lvwIn.
    QDialog& OpenRelatives(const char* id) {
        OnDialog([](QWidget& popup) {
            auto* action = popup.findChild<QAction*>(QStringLiteral("mnuAllKin"));
            EXPECT_TRUE(action->isEnabled());
            popup.close();
            action->trigger();
        });
        const int row = Main().lvwIn.Item(TextView(id)).Index() - 1;
        QTest::mouseClick(View(Main().lvwIn).viewport(), Qt::RightButton, {},
                          CellAt(Main().lvwIn, row, In::LastName - 1));
        QTest::qWait(50);
        return Find<QDialog>("frmRelatives");
    }
};

TEST_F(KinNames, AChosenPathComesIntoView) {
    StartWithFamily();
    program_->ThePresenter().Act([this] { Main().kinshipRequest.FindPathBetween("@I5@", "@I1@"); });
    QTest::qWait(50);
    Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
    EXPECT_EQ(Window().focusWidget(), &View(Main().lvwKinship));
    EXPECT_GT(View(Main().lvwKinship).height(), View(Main().lvwPaths).height());
    EXPECT_EQ(Main().lvwPaths.Item(1).Cell(Paths::Relation), "grand-père"_t) << "what is seen has a name";
    // Another order of the list stays.
    program_->ThePresenter().Act([this] { Main().lvwKinship.SortBy(Kinship::Indi, 0); });
    Press(Main().lvwPaths, 0, Paths::Relation - 1);
    EXPECT_EQ(Message(),
              "[Jean, DUPONT] : grand-père de [Luc, DUPONT].  [Luc, DUPONT] : petit-fils de "
              "[Jean, DUPONT].");
    EXPECT_EQ(Main().lvwKinship.Current().value().Text(), "000001-000001");
    EXPECT_EQ(Main().lvwKinship.SortKey(), Kinship::Indi);
    // It is copied like other lists, but has no favourites.
    QTest::keyClick(&View(Main().lvwPaths), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&View(Main().lvwPaths), Qt::Key_J, Qt::ControlModifier);
    QTest::qWait(50);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(
        QStringLiteral("000001\tgrand-père\t000\t0003\t2\t2\t@I1@")))
        << QApplication::clipboard()->text().toStdString();
    EXPECT_EQ(Find<QComboBox>("cboFavorites(5)").currentText(), QString());
    EXPECT_EQ(Window().Tabs().currentIndex(), 5);
}

TEST_F(KinNames, AllRelativesOfTheClickedPerson) {
    StartWithFamily();
    QDialog& dialog = OpenRelatives("@I5@");
    ASSERT_TRUE(dialog.isVisible());
    Table& relatives = Main().lvwRelatives;
    EXPECT_EQ(relatives.Count(), 4);
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblPerson"))->text(),
              QStringLiteral("Luc DUPONT (@I5@) : 4 parent(s) par le sang"));
    auto& degree = *dialog.findChild<QLineEdit*>(QStringLiteral("txtDegree"));
    degree.setFocus();
    degree.selectAll();
    QTest::keyClicks(&degree, QStringLiteral("1"));
    QTest::keyClick(&degree, Qt::Key_Return);
    EXPECT_EQ(relatives.Count(), 2);
    QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdCopy")), Qt::LeftButton);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(
        QStringLiteral("@I4@\tDurand\tMarie\tF\tmère\t1\t1\t@I4@")))
        << QApplication::clipboard()->text().toStdString();
    const QString page = Path(QStringLiteral("parente.html"));
    OnDialog([&](QWidget& files) {
        qobject_cast<QFileDialog*>(&files)->selectFile(page);
        QMetaObject::invokeMethod(&files, "accept");
    });
    QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdHtml")), Qt::LeftButton);
    QFile written(page);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.readAll().contains("<td>Durand</td><td>Marie</td><td>F</td><td>mère</td><td>1</td>"));
    // A double click leads to the person.
    auto& view = *dialog.findChild<ui::TableView*>(QStringLiteral("lvwRelatives"));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {},
                       view.visualRect(view.model()->index(1, 1)).center());
    QTest::qWait(50);
    EXPECT_EQ(Main().lvwIn.Current().value().Text(), "@I4@");
    EXPECT_EQ(Window().Tabs().currentIndex(), 0);
    QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdClose")), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace swiftroll::test
