#include "kinship/search.h"

#include <algorithm>

#include "kinship/out_link.h"
#include "kinship/path_walk.h"
#include "kinship/remove_islands.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinship {
namespace {

constexpr std::int64_t kStatusStep = 100;
// A stored row takes less than 100 bytes; sorting the table needs some more for a while.
constexpr std::uint64_t kBytesPerRow = 150;
// The texts of more rows would not fit into one store.
constexpr std::uint64_t kMostRows = 400'000'000;

/// Empties the cell that tells where a link leads, for links that the simplification removed.
void BlankLinks(const IslandGraph& island, const std::vector<std::int32_t>& links) {
    for (const std::int32_t link : links) island.RowOfLink(link).SetCell(Xref1::Indi2, TextRef());
}

/// Gives the user interface its turn, in which any command may run.
class Pauses {
  public:
    explicit Pauses(Application& app)
        : app_(app), in_(app.lvwIn.Clearings()), kinship_(app.lvwKinship.Clearings()) {}

    /// @throws Failure when a file was read meanwhile: the individuals of the search are gone then
    void Yield() {
        app_.ports.events.Yield();
        if (app_.lvwIn.Clearings() != in_ || app_.lvwKinship.Clearings() != kinship_) ThrowIndexOutOfRange();
    }
    /// The same, and tells whether to go on.
    bool GoOn() {
        Yield();
        return !app_.bAbort;
    }

  private:
    Application& app_;
    std::uint32_t in_, kinship_;
};

}  // namespace

std::int32_t RowLimit(std::uint64_t memory) {
    return static_cast<std::int32_t>(std::min(memory / 2 / kBytesPerRow, kMostRows));
}

/// Does what the user sees of the walk.
class Search::Walker : public PathVisitor {
  public:
    Walker(Search& search, const IslandGraph& island, const PathCore& core)
        : search_(search),
          app_(search.app_),
          writer_(app_, island, core),
          pauses_(app_),
          rowLimit_(RowLimit(app_.ports.machine.Memory())) {}

    bool Visit(std::int32_t lPathLength) override {
        if (!pauses_.GoOn()) return false;
        if (++search_.lNrCalls % kStatusStep == 0) {
            app_.pnlMessage.Set(
                Concat({Decimal(search_.lNrLinks), " : Longueur du lien = ", Decimal(lPathLength)}));
        }
        return true;
    }

    /// A path once found is written to its end, so the abort is not tested here.
    bool Found(std::span<const std::int32_t> links) override {
        pauses_.Yield();
        app_.trail.Guard(
            "OutLink",
            [&] {
                ++search_.lNrLinks;
                app_.pnlMessage.Set(Concat({Decimal(search_.lNrLinks),
                                            " lien(s) de parenté trouvé(s). Suite de la recherche..."_t}));
                if (!writer_.OutLink(search_.lNrLinks, links)) ++search_.lNrHidden;
            },
            [&] { return Decimal(search_.lNrLinks); });
        if (app_.lvwKinship.Count() >= rowLimit_) {
            search_.rowLimitReached_ = rowLimit_;
            app_.bAbort = true;
        }
        return true;
    }

    bool GoOn() override { return pauses_.GoOn(); }

  private:
    Search& search_;
    Application& app_;
    PathWriter writer_;
    Pauses pauses_;
    std::int32_t rowLimit_;
};

void Search::SetPair(std::int32_t lFrom, std::int32_t lTo) {
    const auto name = [&](std::int32_t row) {
        const Row person = app_.lvwIn.Item(row);
        return Concat({person.Cell(In::FirstName), ", ", UpperCase(person.Cell(In::LastName))});
    };
    sKinshipFrom = name(lFrom);
    sKinshipTo = name(lTo);
    sKinshipPair = Concat({"[", sKinshipFrom, "] et [", sKinshipTo, "]"});
    sKinshipTitle = Concat({"Liens de Parenté entre "_t, sKinshipPair});
}

void Search::FindKinship(TextView sIslandNr, std::int32_t lFrom, std::int32_t lTo) {
    const char* step = "";
    CopyProgress copy;
    isRunning_ = true;
    rowLimitReached_ = 0;
    app_.trail.Guard(
        "FindKinship",
        [&] {
            step = "Sort";
            app_.lvwXref.SortBy(Xref::IDIndi1, 0);
            app_.bAbort = false;
            // While the search yields, the rows may move and the texts of the cells go.
            const Text island(sIslandNr), from(app_.lvwIn.Item(lFrom).Text()),
                to(app_.lvwIn.Item(lTo).Text());
            step = "AddLvwXref1";
            if (!AddLvwXref1(app_, island, copy)) return;
            if (app_.lvwXref1.Count() > 0) Walk(from, to, step);
            SortPaths();
        },
        [&] {
            return Concat({step, "/", Decimal(copy.row), "/", Decimal(copy.copied), "/", sKinshipTitle});
        });
    isRunning_ = false;
}

void Search::Walk(TextView sFromId, TextView sToId, const char*& step) {
    IslandGraph island(app_);
    step = "";
    const std::int32_t from = island.NodeOf(sFromId), to = island.NodeOf(sToId);
    // What interrupts this phase ends the walk at its first step.
    Pauses pauses(app_);
    const std::vector<std::int32_t> removed =
        modKinshipOptimize::RemoveIslands(island.graph, from, to, [&] { return pauses.GoOn(); });
    BlankLinks(island, removed);
    lRemovedPaths = static_cast<std::int32_t>(removed.size());
    app_.pnlMessage.Set(Concat({"Chemins enlevés = "_t, Decimal(lRemovedPaths)}));

    lNrLinks = 0;
    app_.lvwKinship.Clear();
    app_.lvwKinship.SetSorted(false);
    app_.ProgressBar1.Set(0);
    lNrCalls = lNrHidden = 0;
    const PathCore core(island.graph, from, to);
    Walker walker(*this, island, core);
    // A box may open when the focus leaves another control: what happens meanwhile, the walker sees.
    app_.ShowTab(Tab::Kinship);
    PathWalk(core.graph, core.from, core.to).Run(walker);
}

void Search::SortPaths() {
    app_.lvwXref.SetSorted(false);
    // Each sort keeps the earlier order of equal rows.
    for (const auto column : {Kinship::SeqNr, Kinship::NrLink, Kinship::NrSpouses}) {
        app_.lvwKinship.SortBy(column, 0);
    }
}

}  // namespace swiftroll::modKinship
