// The strip over the list of "Sortie", and the bar that says that the list is old.
#include <QAccessible>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include "grouping_chip.h"
#include "tables/columns.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class GroupingStripTest : public WindowTest {
  protected:
    void StartWithList() {
        Start();
        Read(kFamily, true);
        program_->ThePresenter().Act([this] {
            for (const Column& column : Main().lvwOut.Columns())
                Main().lvwOut.MoveColumn(column.Index, column.Index.Index());
            Main().cmdCalcOutput.Click();
        });
        QTest::qWait(20);
    }
    ui::GroupingChip& Chip(ColumnId column) {
        const QString name = QStringLiteral("groupingChip(%1)").arg(column.Section());
        return Find<ui::GroupingChip>(name.toLatin1().constData());
    }
    QString Told() { return Find<QWidget>("groupingStrip").accessibleDescription(); }
    bool IsStale() { return Find<QWidget>("staleListBar").isVisible(); }
    /// Presses a chip, moves it so that its middle goes to a point of the strip, and lets it go there.
    void Drag(ColumnId column, const QPoint& target) {
        ui::GroupingChip& chip = Chip(column);
        const QPoint grip(6, chip.height() / 2);
        const QPoint way = target - chip.geometry().center();
        QTest::mousePress(&chip, Qt::LeftButton, {}, grip);
        for (int step = 1; step <= 4; ++step) {
            const QPoint at = chip.mapFromParent(target - way * (4 - step) / 4) - chip.rect().center() + grip;
            QMouseEvent move(QEvent::MouseMove, at, chip.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&chip, &move);
        }
        QTest::mouseRelease(&chip, Qt::LeftButton, {}, grip);
    }
    /// Chooses an entry of the menu of columns.
    void Add(const QString& caption) {
        OnDialog([caption](QWidget& popup) {
            auto& menu = dynamic_cast<QMenu&>(popup);
            for (QAction* action : menu.actions()) {
                if (action->text() != caption) continue;
                return QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
            }
            FAIL() << "no entry " << caption.toStdString();
        });
        QTest::qWait(
            20);  // the menu is always the same one, and the last time it was open is to be seen as over
        Click("groupingAdd");
        Window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
    }
};

TEST_F(GroupingStripTest, ChipsAreDraggedTakenOutAndAddedAndTheListIsComputedAgain) {
    StartWithList();
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par: ID > Nom | Nbre | "));
    EXPECT_FALSE(IsStale());
    QTest::mouseClick(&Chip(Out::ID), Qt::LeftButton, {}, Chip(Out::ID).CrossAt());
    EXPECT_TRUE(IsStale());
    EXPECT_FALSE(Chip(Out::ID).isVisible());
    for (const char* column : {"Lieu", "Date Min", "Date Max"}) Add(QString::fromUtf8(column));
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par: Nom > Lieu | Nbre | Min, Max"));

    Drag(Out::Place, Chip(Out::LastName).geometry().topLeft() + QPoint(0, 5));
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par: Lieu > Nom | Nbre | Min, Max"));
    EXPECT_EQ(View(Main().lvwOut).Header().visualIndex(Out::Place - 1), 0) << "the header moved with it";
    Click("staleListButton");
    EXPECT_FALSE(IsStale());
    EXPECT_EQ(Main().lvwOut.Count(), 3);
    EXPECT_EQ(Main().lvwOut.Item(1).Cell(Out::Number), "     3");
    EXPECT_EQ(Find<QLabel>("workNoticeText").text(), QStringLiteral("Liste calculée: 3 lignes"));

    // The other way: a header is dragged, and the strip follows.
    QHeaderView& header = View(Main().lvwOut).Header();
    header.moveSection(header.visualIndex(Out::Place - 1), header.count() - 1);
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par: Nom | Nbre | Min, Max"));
    EXPECT_TRUE(IsStale());
    QTest::keyClick(&View(Main().lvwOut), Qt::Key_F5);
    EXPECT_FALSE(IsStale());
    Find<QCheckBox>("chkPrivate").setChecked(true);
    EXPECT_TRUE(IsStale());
    ShowTab(0);
    EXPECT_FALSE(IsStale()) << "only the tab of the list says so";
}

TEST_F(GroupingStripTest, TheKeyboardMovesChipsAndEscapeLetsOneGo) {
    StartWithList();
    Add(QStringLiteral("Lieu"));
    Chip(Out::ID).setFocus();
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Window().focusWidget(), key, modifiers);
    };
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par: Nom > ID > Lieu | Nbre | "));
    EXPECT_EQ(Window().focusWidget(), &Chip(Out::ID)) << "the focus stays on what is moved";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Chip(Out::ID))->text(QAccessible::Name),
              QStringLiteral("ID, groupe 2 sur 3"));
    press(Qt::Key_Delete);
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par: Nom > Lieu | Nbre | "));
    EXPECT_EQ(Window().focusWidget(), &Chip(Out::Place));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(Window().focusWidget(), &Chip(Out::LastName)) << "there is nothing before it";
    press(Qt::Key_Backspace);
    press(Qt::Key_Delete);
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par:  | Nbre | "));
    EXPECT_EQ(Window().focusWidget(), &Find<QToolButton>("groupingAdd"));

    Add(QStringLiteral("Nom"));
    Add(QStringLiteral("Sexe"));
    ui::GroupingChip& chip = Chip(Out::Sex);
    const QRect place = chip.geometry();
    QTest::mousePress(&chip, Qt::LeftButton, {}, QPoint(6, 6));
    QMouseEvent move(QEvent::MouseMove, QPointF(-90, 6), chip.mapToGlobal(QPointF(-90, 6)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&chip, &move);
    EXPECT_NE(chip.geometry(), place);
    QTest::keyClick(&chip, Qt::Key_Escape);
    EXPECT_EQ(chip.geometry(), place);
    EXPECT_NE(Find<QLabel>("pnlMessage").text(), QStringLiteral("Interrompu par l'utilisateur !"));
    QTest::mouseRelease(&chip, Qt::LeftButton, {}, QPoint(6, 6));
    EXPECT_EQ(Told(), QStringLiteral("Regroupé par: Nom > Sexe | Nbre | "));
}

TEST_F(GroupingStripTest, AThickBarStandsBehindTheCountWhereverItIs) {
    StartWithList();
    auto& border = Find<QWidget>("groupBorder");
    ui::TableView& view = View(Main().lvwOut);
    QHeaderView& header = view.Header();
    const auto end = [&] {
        const int section = Out::Number - 1;
        return view.viewport()->x() + header.sectionViewportPosition(section) + header.sectionSize(section);
    };
    const auto isThere = [&] {
        return border.isVisible() && std::abs(border.geometry().center().x() - end()) < 3;
    };
    EXPECT_TRUE(isThere());
    EXPECT_GE(border.height(), view.viewport()->height() + header.height());
    header.resizeSection(Out::Number - 1, 150);
    EXPECT_TRUE(isThere());
    view.horizontalScrollBar()->setValue(40);
    EXPECT_TRUE(isThere());
    header.moveSection(header.visualIndex(Out::Number - 1), 0);
    EXPECT_TRUE(isThere());
    const auto ink = [&](int section) {
        return view.model()->headerData(section, Qt::Horizontal, Qt::ForegroundRole);
    };
    EXPECT_TRUE(ink(Out::LastName - 1).isValid());
    EXPECT_FALSE(ink(Out::Number - 1).isValid());
    EXPECT_FALSE(View(Main().lvwIn).model()->headerData(5, Qt::Horizontal, Qt::ForegroundRole).isValid());
}

}  // namespace
}  // namespace swiftroll::test
