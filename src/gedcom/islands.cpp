#include "gedcom/islands.h"

#include "tables/column_numbers.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::int32_t kStatusStep = 100;

/// Gives `sIsland` to a row and to all that can be reached from it. The rows still to visit stand on a stack of
/// our own: a chain of a million people is no danger.
void CalcIsland(Application& app, const XrefRanges& colXrefRange, TextRef sIsland, const Row& start) {
    std::vector<Row> toVisit{start};
    toVisit.back().SetCell(In::IslandNr, sIsland);
    while (!toVisit.empty()) {
        const Row person = toVisit.back();
        toVisit.pop_back();
        RowRange range;
        std::int32_t i = 0;
        app.trail.Guard(
            "CalcIsland",
            [&] {
                range = colXrefRange.Find(person.Text()).value_or(RowRange{1, 0});
                for (i = range.first; i <= range.last; ++i) {
                    const auto linked = app.lvwIn.Find(RowKey(app.lvwXref.Item(i).Ref(Xref::IDIndi2)));
                    if (!linked || !linked->Ref(In::IslandNr).IsEmpty()) continue;
                    toVisit.push_back(*linked);
                    toVisit.back().SetCell(In::IslandNr, sIsland);
                }
            },
            [&] {
                return Concat({person.Text(), "/", Decimal(range.first), "/", Decimal(range.last), "/", Decimal(i), "/",
                               start.Cell(In::IslandNr)});
            });
    }
}

}  // namespace

void CalcIslands(Application& app, const XrefRanges& colXrefRange) {
    app.trail.Guard(
        "CalcIslands",
        [&] {
            app.lvwXref.SortBy(0, 0);
            std::int32_t lIslandNr = 0;
            const auto showCount = [&] {
                app.pnlMessage.Set(Concat({"Calcul des îlots... ("_t, Decimal(lIslandNr), ")"}));
            };
            for (std::int32_t i = 1; i <= app.lvwIn.Count(); ++i) {
                const Row person = app.lvwIn.Item(i);
                if (!person.Ref(In::IslandNr).IsEmpty()) continue;
                if (++lIslandNr % kStatusStep == 0) showCount();
                CalcIsland(app, colXrefRange, app.lvwIn.Store().Put(Decimal(lIslandNr, 4)), person);
            }
            showCount();
        },
        [] { return Text(); });
}

}  // namespace swiftroll::modReadGedcom
