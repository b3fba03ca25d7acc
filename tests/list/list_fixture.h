#pragma once

#include <initializer_list>
#include <utility>

#include "support/test_ports.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {

using CellsByKey = std::initializer_list<std::pair<TextView, TextView>>;

/// Adds an individual to `lvwIn`, its cells given by column key.
inline Row AddIndividual(frmMain& main, TextView id, CellsByKey cells) {
    Row row = main.lvwIn.Add(std::nullopt, id, id);
    for (const auto& [key, value] : cells) row.SetCell(main.lvwIn.FindColumn(key)->Index, value);
    return row;
}

/// Drags the columns of `lvwOut` so that these stand before `Number`, in this order.
inline void Arrange(Table& lvwOut, const std::vector<TextView>& keys) {
    std::int16_t position = 0;
    for (const TextView key : keys) lvwOut.MoveColumn(lvwOut.FindColumn(key)->Index, ++position);
    lvwOut.MoveColumn(lvwOut.FindColumn("Number")->Index, ++position);
}

/// The rows of `lvwOut` as they are shown: the cells up to `Number` in the order of their positions.
inline std::vector<Text> ListOf(frmMain& main) {
    main.InitIndexes();
    const auto& columns = main.positions.Of(main.lvwOut).iColAtPos;
    std::vector<Text> rows;
    for (std::int32_t i = 1; i <= main.lvwOut.Count(); ++i) {
        Text text;
        for (std::int16_t position = 1; position <= main.positions.iPosNumber; ++position) {
            text += Concat({"|", main.lvwOut.Item(i).Cell(columns[position])});
        }
        rows.push_back(text.substr(1));
    }
    return rows;
}

using Texts = std::vector<Text>;

}  // namespace swiftroll::test
