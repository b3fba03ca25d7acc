// The engine beside the nested walks that it stands for, on any family file.
#include <gtest/gtest.h>

#include <random>

#include "selection/plain_selection.h"
#include "support/test_ports.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::test {
namespace {

class AnySelection : public TestMain {
  public:
    explicit AnySelection(unsigned seed) : random_(seed) {
        Read(File());
        // The columns of the list, and its rows, which put lvwIn in the order of the groups.
        for (int moves = Below(6); moves > 0; --moves) {
            const ColumnId moved = Column(main.lvwOut);
            main.lvwOut.MoveColumn(moved, Column(main.lvwOut).Index());
        }
        main.cmdCalcOutput.Click();
        AddPaths();
        if (Below(2) == 0) main.lvwIn.SortBy(Column(main.lvwIn), static_cast<std::int16_t>(Below(2)));
        if (Below(4) == 0 && main.lvwFamily.Count() > 0)
            main.lvwFamily.Remove(1 + Below(main.lvwFamily.Count()));
        if (Below(4) == 0 && main.lvwIn.Count() > 0) main.lvwIn.Remove(1 + Below(main.lvwIn.Count()));
    }

    /// Marks at random and runs any mode on any cell in both ways. False when the marks are not the same.
    testing::AssertionResult RunOnce() {
        Table& table = *std::vector{
            &main.lvwIn,         &main.lvwIn,     &main.lvwOut,    &main.lvwXref,
            &main.lvwFamilyXref, &main.lvwFamily, &main.lvwKinship}[static_cast<std::size_t>(Below(7))];
        const TextView sMode = std::vector<TextView>{
            "I", "P", "S", "C", "V<=", "V=", "V>=", "A", "D"}[static_cast<std::size_t>(Below(9))];
        const int generations = 1 + Below(4);
        main.chkIgnoreCase.SetChecked(Below(2) == 0);
        main.chkDelAccents.SetChecked(Below(2) == 0);
        main.lvwActiveListView = &table;
        auto& context = main.selection.context;
        context.SetClickedCell(main, table, Column(table));
        context.bRestoreClickedRow = true;
        const bool bSelect = Below(2) == 0;
        MarkAnyRows();

        const auto before = Marks();
        bool fails = false;
        try {
            PlainSelection(main, context, bSelect).Run(sMode, generations);
        } catch (const Failure&) {
            fails = true;
        }
        const auto expected = Marks();
        SetMarks(before);
        const int reports = main.trail.Reports();
        main.selection.Add_Remove_Selection(bSelect, sMode, generations);
        changes += expected != before;
        failures += fails;
        if (Marks() == expected && main.trail.Reports() == reports + (fails ? 1 : 0) && !main.bWaitCursor &&
            !context.bRestoreClickedRow) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure()
               << table.Name() << " column " << context.iClickedCol.Index() << " mode " << sMode
               << (bSelect ? " add" : " remove") << "\nbefore " << testing::PrintToString(before)
               << "\nexpected " << testing::PrintToString(expected) << "\nmarks "
               << testing::PrintToString(Marks()) << testing::PrintToString(RowsOf(table));
    }
    int changes = 0, failures = 0;

  private:
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    ColumnId Column(const Table& table) { return ColumnId::OfSection(Below(table.ColumnCount())); }
    TextView AnyOf(std::initializer_list<TextView> texts) {
        return texts.begin()[Below(static_cast<int>(texts.size()))];
    }
    /// An individual of the file, rarely one that it has not.
    Text Id(int people) { return Concat({"@I", Decimal(Below(20) == 0 ? 99 : 1 + Below(people)), "@"}); }

    Text File() {
        const int people = 1 + Below(9), families = Below(6);
        Text file;
        const auto line = [&](std::initializer_list<TextView> words) { file += Concat(words) + "\r\n"; };
        for (int i = 1; i <= people; ++i) {
            line({"0 @I", Decimal(i), "@ INDI"});
            line({"1 NAME ", AnyOf({"", "A", "É"_t}), "/",
                  AnyOf({"Dupont", "DUPONT", "Dupônt"_t, "Le Roy", "le-roy", ""}), "/"});
            line({"1 SEX ", AnyOf({"M", "F", "U"})});
            line({"1 BIRT"});
            line({"2 DATE ", AnyOf({"1850", "999", "1851", "ABT 1900"})});
            line({"2 PLAC ", AnyOf({"Brest", "brest", "", "Évry"_t})});
            if (families > 0 && Below(3) == 0) {
                line({"1 ", AnyOf({"FAMS", "FAMC"}), " @F", Decimal(1 + Below(families + 1)), "@"});
            }
        }
        for (int i = 1; i <= families; ++i) {
            line({"0 @F", Decimal(i), "@ FAM"});
            if (Below(4) > 0) line({"1 HUSB ", Id(people)});
            if (Below(4) > 0) line({"1 WIFE ", Id(people)});
            for (int children = Below(4); children > 0; --children) line({"1 CHIL ", Id(people)});
        }
        return file + "0 TRLR\r\n";
    }

    /// Rows of paths as a search leaves them, of people and families of the file and of others.
    void AddPaths() {
        for (int path = 1 + Below(3); path > 0; --path) {
            for (int row = 1 + Below(4); row >= 0; --row) {
                const Text seqNr = Concat(
                    {"00000", Decimal(path), row == 0 ? "-999999" : "-00000", row == 0 ? "" : Decimal(row)});
                Row added = main.lvwKinship.Add(std::nullopt, seqNr, seqNr);
                if (row > 0) added.SetCell(Kinship::IDIndi, Id(main.lvwIn.Count()));
                if (row > 1) added.SetCell(Kinship::IDFamily, Concat({"@F", Decimal(1 + Below(4)), "@"}));
                added.SetCell(Kinship::Type, AnyOf({"Fils", "FILLE", "fille"}));
            }
        }
    }

    void MarkAnyRows() {
        for (Table* table : main.Shown()) {
            const int rarity = 1 + Below(8);
            for (std::int32_t i = 1; i <= table->Count(); ++i) {
                table->Item(i).SetSelected(Below(rarity) == 0);
                table->Item(i).SetChecked(Below(rarity) == 0);
            }
        }
    }
    /// The marks of all tables.
    std::vector<std::pair<bool, bool>> Marks() {
        std::vector<std::pair<bool, bool>> marks;
        for (Table* table : main.Shown()) {
            for (std::int32_t i = 1; i <= table->Count(); ++i) {
                marks.emplace_back(table->Item(i).Selected(), table->Item(i).Checked());
            }
        }
        return marks;
    }
    void SetMarks(const std::vector<std::pair<bool, bool>>& marks) {
        std::size_t place = 0;
        for (Table* table : main.Shown()) {
            for (std::int32_t i = 1; i <= table->Count(); ++i, ++place) {
                table->Item(i).SetSelected(marks[place].first);
                table->Item(i).SetChecked(marks[place].second);
            }
        }
    }

    std::mt19937 random_;
};

TEST(Selection, MarksWhatTheNestedWalksMark) {
    int changes = 0, failures = 0;
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        AnySelection selection(seed);
        for (int run = 0; run < 30; ++run) ASSERT_TRUE(selection.RunOnce()) << "seed " << seed;
        changes += selection.changes;
        failures += selection.failures;
    }
    EXPECT_GT(changes, 6000);
    EXPECT_GT(failures, 300);
}

}  // namespace
}  // namespace swiftroll::test
