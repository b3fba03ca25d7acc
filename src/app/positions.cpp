#include "app/positions.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

void Positions::InitIndexes(TableSet& tables, Feedback& feedback) {
    iKeyColIn = iKeyColOut = {};
    for (const Column& column : tables.lvwOut.Columns()) {
        if (column.Key.empty()) continue;
        const ColumnFacts& facts = *column.Facts;
        if (column.Key != facts.key) {
            feedback.Box(" - InitIdxOut", Concat({"Colonne ajoutée dans Out : "_t, column.Caption, kLineEnd,
                                                  "Merci de me prévenir !"_t}));
        } else if (facts.formsGroups) {
            iKeyColIn[column.Position] = ColumnOfKey(In::kColumns, facts.key);
            iKeyColOut[column.Position] = column.Index;
        } else if (facts.kind == CellKind::Number) {
            iPosNumber = column.Position;
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

}  // namespace swiftroll
