#include "gedcom/islands.h"

#include "tables/columns.h"
#include "tables/look_ahead.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::int32_t kStatusStep = 100;

/// The links as numbers: rows of `lvwIn` from 0, and for each the links that leave it. The walk then stays in
/// small arrays, wherever the rows stand in memory.
class LinkGraph {
  public:
    LinkGraph(Application& app, const XrefRanges& colXrefRange)
        : pause_([&app] { app.ports.status.StatusChanged(); }) {
        targets_.reserve(static_cast<std::size_t>(app.lvwXref.Count()));
        for (std::int32_t i = 1; i <= app.lvwXref.Count(); ++i) {
            LookAhead(app.lvwXref, i);
            app.ProgressBar1.Show(i, app.lvwXref.Count());
            const auto linked = app.lvwIn.Find(RowKey(app.lvwXref.Item(i).Ref(Xref::IDIndi2)));
            targets_.push_back(linked ? linked->Index() - 1 : kNobody);
        }
        ranges_.reserve(static_cast<std::size_t>(app.lvwIn.Count()));
        for (std::int32_t i = 1; i <= app.lvwIn.Count(); ++i) {
            app.ProgressBar1.Show(i, app.lvwIn.Count());
            ranges_.push_back(colXrefRange.Of(app.lvwIn.Item(i).Ref(In::ID)));
        }
    }

    /// Gives `island` to a person and to all that can be reached from it without one. The people still to
    /// visit stand on a stack of our own: a chain of a million is no danger.
    void CalcIsland(std::int32_t island, std::int32_t start, std::vector<std::int32_t>& islandOf) {
        toVisit_.assign(1, start);
        At(islandOf, start) = island;
        std::size_t visits = 0;
        while (!toVisit_.empty()) {
            const RowRange links = At(ranges_, toVisit_.back());
            toVisit_.pop_back();
            PauseAt(++visits, pause_);
            for (std::int32_t i = links.first; i <= links.last; ++i) {
                const std::int32_t person = At(targets_, i - 1);
                if (person == kNobody || At(islandOf, person) != 0) continue;
                At(islandOf, person) = island;
                toVisit_.push_back(person);
            }
        }
    }

  private:
    static constexpr std::int32_t kNobody = -1;
    template <class Value>
    static Value& At(std::vector<Value>& values, std::int32_t i) {
        return values.at(static_cast<std::size_t>(i));
    }
    Pause pause_;
    std::vector<std::int32_t> targets_;  // by row of lvwXref
    std::vector<RowRange> ranges_;       // by row of lvwIn
    std::vector<std::int32_t> toVisit_;
};

}  // namespace

std::vector<std::int32_t> CalcIslands(Application& app, const XrefRanges& colXrefRange) {
    std::vector<std::int32_t> sizes(1);
    app.trail.Guard(
        "CalcIslands",
        [&] {
            app.lvwXref.SortBy(Xref::IDIndi1, 0);
            LinkGraph graph(app, colXrefRange);
            const std::int32_t count = app.lvwIn.Count();
            std::vector<std::int32_t> islandOf(static_cast<std::size_t>(count));
            std::vector<TextRef> texts{TextRef()};  // by island
            std::int32_t lIslandNr = 0;
            const auto showCount = [&] {
                app.pnlMessage.Set(Concat({"Calcul des îlots... ("_t, Decimal(lIslandNr), ")"}));
            };
            for (std::int32_t i = 0; i < count; ++i) {
                app.ProgressBar1.Show(i + 1, count);
                std::int32_t& island = islandOf[static_cast<std::size_t>(i)];
                if (island == 0) {
                    if (++lIslandNr % kStatusStep == 0) showCount();
                    sizes.push_back(0);
                    texts.push_back(app.lvwIn.Store().Put(Decimal(lIslandNr, 4)));
                    graph.CalcIsland(lIslandNr, i, islandOf);
                }
                ++sizes[static_cast<std::size_t>(island)];
                app.lvwIn.Item(i + 1).SetCell(In::IslandNr, texts[static_cast<std::size_t>(island)]);
            }
            showCount();
        },
        [] { return Text(); });
    return sizes;
}

}  // namespace swiftroll::modReadGedcom
