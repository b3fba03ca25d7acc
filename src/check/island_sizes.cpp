#include "check/island_sizes.h"

#include "tables/columns.h"
#include "tables/look_ahead.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {
namespace {

struct Island {
    std::int64_t people = 0;
    std::int64_t eldestYear = YearSpan::kEver;
    std::uint32_t eldestLine = std::numeric_limits<std::uint32_t>::max();
    TextRef number, eldest;  // of the store of the table
};

}  // namespace

void CheckIslands(const TableSet& tables, const FileRecords& records, Findings& findings,
                  const std::function<Text(TextView id)>& describe) {
    std::vector<Island> islands;  // by number, from 1
    for (std::int32_t i = 1; i <= tables.lvwIn.Count(); ++i) {
        LookAhead(tables.lvwIn, i);
        const RowView row = tables.lvwIn.Item(i);
        // There are as many numbers as people at most.
        const auto number = static_cast<std::size_t>(ParseDecimal(row.Cell(In::IslandNr)).value_or(0));
        if (number == 0) continue;
        if (number > islands.size()) islands.resize(number);
        Island& island = islands[number - 1];
        ++island.people;
        const std::int64_t year = ParseDecimal(row.Cell(In::BirthMin)).value_or(YearSpan::kEver);
        // The user may have sorted the table: what comes first is what stands first in the file.
        const std::uint32_t line = records.LineOf(records.ids.FindInterned(row.Cell(In::ID)));
        if (year > island.eldestYear || (year == island.eldestYear && line > island.eldestLine)) continue;
        island = {island.people, year, line, row.Ref(In::IslandNr), row.Ref(In::ID)};
    }
    if (islands.size() < 2) return;
    for (const Island& island : islands) {
        const TextView id = tables.lvwIn.Store().Get(island.eldest);
        Text text = Concat({"Îlot "_t, tables.lvwIn.Store().Get(island.number), " : ", Decimal(island.people),
                            island.people < 2 ? " personne" : " personnes"});
        if (island.eldestYear != YearSpan::kEver) {
            text += Concat({", l'aînée : "_t, describe(id), ", naissance en "_t, Decimal(island.eldestYear)});
        } else if (!id.empty()) {
            text += Concat({", la première : "_t, describe(id)});
        }
        findings.Add(Rule::Island, island.eldestLine, id, text + ".");
    }
}

}  // namespace swiftroll::modCheck
