#pragma once

#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {

/// A couple with two children and somebody else; the list is computed, and the first child's kinship with the
/// father found.
struct Lists : testing::Test, TestMain {
    Lists() {
        main.lvwOut.MoveColumn(Out::ID, 3);  // behind Number, so that the names form the groups
        ReadAndList(
            WithCrLf("0 @I1@ INDI\n1 NAME Jean-Pierre /Dupont/\n1 SEX M\n1 BIRT\n2 DATE 1850\n2 PLAC Paris\n"
                     "0 @I2@ INDI\n1 NAME Élise /Martin/\n1 SEX F\n"
                     "0 @I3@ INDI\n1 NAME Paul /DUPONT/\n1 SEX M\n"
                     "0 @I4@ INDI\n1 NAME Anne /Dupont/\n1 SEX F\n1 BIRT\n2 PLAC PARIS\n"
                     "0 @I5@ INDI\n1 NAME Jean /Le Gall/\n"
                     "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL @I4@\n0 TRLR\n"_t));
        main.kinshipRequest.FindPathBetween("@I3@", "@I1@");
        dialogs.boxes.clear();
        // The computation sorted the individuals.
        main.lvwIn.SortBy(In::ID, 0);
        main.lvwIn.SetSorted(false);
    }
    /// Sets the marks of the rows as they are told, a character a row: "." none, "s" highlighted, "c" ticked,
    /// "b" both.
    static void Mark(Table& table, TextView marks) {
        for (std::size_t i = 0; i < marks.size(); ++i) {
            Row row = table.Item(static_cast<std::int32_t>(i + 1));
            row.SetSelected(marks[i] == 's' || marks[i] == 'b');
            row.SetChecked(marks[i] == 'c' || marks[i] == 'b');
        }
    }
    static Text Marks(Table& table) {
        Text marks;
        for (std::int32_t i = 1; i <= table.Count(); ++i) {
            const Row row = table.Item(i);
            marks += ".scb"[(row.Selected() ? 1 : 0) + (row.Checked() ? 2 : 0)];
        }
        return marks;
    }
    static Text Keys(Table& table) {
        Text keys;
        for (std::int32_t i = 1; i <= table.Count(); ++i) keys += table.Item(i).Key();
        return keys;
    }
    /// A hit test in a table that gets the focus.
    void Point(Table& table, std::int32_t row, std::int32_t column) {
        main.tabs.TableGotFocus(table);
        main.lists.HitTest(row, column);
    }
};

}  // namespace swiftroll::test
