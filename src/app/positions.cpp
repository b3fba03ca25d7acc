#include "app/positions.h"

#include <algorithm>

#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

// Columns of lvwOut that can form the group key; lvwIn has a column of the same key for each.
constexpr TextView kTextColumns[] = {"ID",         "LastName",  "FirstName", "Place",   "BirthPlace",
                                     "DeathPlace", "MarrPlace", "Sex",       "IslandNr"};
constexpr TextView kYearColumns[] = {"DateMin",  "DateMax",  "BirthMin", "BirthMax",
                                     "DeathMin", "DeathMax", "MarrMin",  "MarrMax"};
constexpr std::int16_t kYearColumn = -1;

template <std::size_t N>
bool Contains(const TextView (&keys)[N], TextView key) {
    return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

}  // namespace

void Positions::InitIndexes(TableSet& tables, Dialogs& dialogs, TextView caption) {
    iKeyColIn = PerColumn<std::int16_t>(kNoColumn);
    iKeyColOut = PerColumn<std::int16_t>(kNoColumn);
    for (const Column& column : tables.lvwOut.Columns()) {
        if (column.Key.empty()) continue;
        outPositions_[column.Key] = column.Position;
        if (Contains(kTextColumns, column.Key)) {
            iKeyColIn[column.Position] = tables.lvwIn.FindColumn(column.Key)->Index;
            iKeyColOut[column.Position] = column.Index;
        } else if (Contains(kYearColumns, column.Key)) {
            iKeyColIn[column.Position] = iKeyColOut[column.Position] = kYearColumn;
        } else if (column.Key == "Number") {
            iPosNumber = column.Position;
        } else {
            dialogs.Show(
                {Concat({caption, " - InitIdxOut"}), Concat({"Colonne ajoutée dans Out : "_t, column.Caption,
                                                             kLineEnd, "Merci de me prévenir !"_t})});
        }
    }
    for (const Table* table : tables.All()) {
        OfTable& of = byTable_[table];
        of = OfTable();
        for (const Column& column : table->Columns()) {
            of.iColAtPos[column.Position] = column.Index;
            of.iPosOfCol[column.Index] = column.Position;
        }
    }
}

std::int16_t Positions::OutPosition(TextView key) const {
    const auto found = outPositions_.find(key);
    if (found == outPositions_.end()) throw Failure(FailureKind::KeyNotFound, key);
    return found->second;
}

}  // namespace swiftroll
