#include "kinship/search.h"

#include <algorithm>

#include "kinship/nearest_paths.h"
#include "kinship/out_link.h"
#include "kinship/path_options.h"
#include "kinship/path_walk.h"
#include "kinship/remove_islands.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinship {
namespace {

constexpr std::int64_t kStatusStep = 100;
constexpr std::int32_t kRowsBetweenLooks = 100'000;
// A stored row takes less than 100 bytes; sorting the table needs some more for a while.
constexpr std::uint64_t kBytesPerRow = 150;
// The texts of more rows would not fit into one store.
constexpr std::uint64_t kMostRows = 400'000'000;

/// Empties the cell that tells where a link leads, for links that the simplification removed.
void BlankLinks(const IslandGraph& island, const std::vector<std::int32_t>& links) {
    for (const std::int32_t link : links) island.RowOfLink(link).SetCell(Xref1::Indi2, TextRef());
}

/// Lets the progress bar move for as long as it lives: nobody knows when a search ends.
class Busy {
  public:
    explicit Busy(ProgressBar& bar) : bar_(bar) { bar_.SetBusy(true); }
    ~Busy() { bar_.SetBusy(false); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    ProgressBar& bar_;
};

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

std::int32_t RowLimit(std::uint64_t memory, std::uint64_t available) {
    const std::uint64_t bytes = std::min(memory / 2, available - available / 4);
    return static_cast<std::int32_t>(std::min(bytes / kBytesPerRow, kMostRows));
}

/// Does what the user sees of the walk.
class Search::Walker : public PathVisitor {
  public:
    Walker(Search& search, const IslandGraph& island, const PathCore& core, bool isWhole)
        : search_(search),
          app_(search.app_),
          writer_(app_, island, core),
          pauses_(app_),
          isWhole_(isWhole),
          rowLimit_(RowLimit(app_.ports.machine.Memory(), app_.ports.machine.AvailableMemory())) {}

    bool Visit(std::int32_t lPathLength) override {
        if (!pauses_.GoOn()) return false;
        if (++search_.lNrCalls % kStatusStep == 0) {
            app_.pnlMessage.Set(
                Concat({Decimal(search_.lNrLinks), " : Longueur du lien = ", Decimal(lPathLength)}));
        }
        TellWalk();
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
        KeepToMemory();
        TellWalk();
        return true;
    }

    bool GoOn() override {
        if (!pauses_.GoOn()) return false;
        TellWalk();
        return true;
    }

  private:
    void TellWalk() {
        if (isWhole_ && search_.onWalk) search_.onWalk();
    }

    /// Ends the search before the memory is full. Other programs may have taken some meanwhile.
    void KeepToMemory() {
        const std::int32_t rows = app_.lvwKinship.Count();
        if (rows >= nextLook_) {
            nextLook_ = rows + kRowsBetweenLooks;
            Machine& machine = app_.ports.machine;
            rowLimit_ = std::min(rowLimit_, rows + RowLimit(machine.Memory(), machine.AvailableMemory()));
        }
        if (rows < rowLimit_) return;
        search_.rowLimitReached_ = rowLimit_;
        app_.bAbort = true;
    }

    Search& search_;
    Application& app_;
    PathWriter writer_;
    Pauses pauses_;
    bool isWhole_;
    std::int32_t rowLimit_, nextLook_ = kRowsBetweenLooks;
};

Search::Search(Application& app) : pathNames(app), app_(app) {
    app_.lvwPaths.OnNeeded = [this](Row& row) { pathNames.Complete(row); };
}

void Search::SetPair(std::int32_t lFrom, std::int32_t lTo) {
    const auto name = [&](std::int32_t row) {
        const Row person = app_.lvwIn.Item(row);
        return Concat({person.Cell(In::FirstName), ", ", UpperCase(person.Cell(In::LastName))});
    };
    sKinshipFrom = name(lFrom);
    sKinshipTo = name(lTo);
    sKinshipFromId = app_.lvwIn.Item(lFrom).Text();
    sKinshipToId = app_.lvwIn.Item(lTo).Text();
    sKinshipPair = PairOf(sKinshipFrom, sKinshipTo);
    sKinshipTitle = TitleOf(sKinshipPair);
}

Text Search::PairOf(TextView sFrom, TextView sTo) { return Concat({"[", sFrom, "] et [", sTo, "]"}); }

Text Search::TitleOf(TextView sPair) { return Concat({"Liens de Parenté entre "_t, sPair}); }

void Search::FindKinship(TextView sIslandNr, std::int32_t lFrom, std::int32_t lTo, std::int32_t nearest) {
    const char* step = "";
    CopyProgress copy;
    const ScopedFlag canStop(app_.bCanStop);
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
            if (app_.lvwXref1.Count() > 0) Walk(from, to, nearest, step);
            SortPaths();
        },
        [&] {
            return Concat({step, "/", Decimal(copy.row), "/", Decimal(copy.copied), "/", sKinshipTitle});
        });
    isRunning_ = false;
}

void Search::Walk(TextView sFromId, TextView sToId, std::int32_t nearest, const char*& step) {
    IslandGraph island(app_);
    step = "";
    const Busy busy(app_.ProgressBar1);
    const std::int32_t from = island.NodeOf(sFromId), to = island.NodeOf(sToId);
    // What interrupts this phase ends the walk at its first step.
    Pauses pauses(app_);
    const std::vector<std::int32_t> removed =
        modKinshipOptimize::RemoveIslands(island.graph, from, to, [&] { return pauses.GoOn(); });
    BlankLinks(island, removed);
    lRemovedPaths = static_cast<std::int32_t>(removed.size());
    app_.pnlMessage.Set(Concat({"Chemins enlevés = "_t, Decimal(lRemovedPaths)}));

    lNrLinks = 0;
    for (Table* table : {&app_.lvwKinship, &app_.lvwPaths}) {
        table->Clear();
        table->SetSorted(false);
    }
    app_.ProgressBar1.Set(0);
    lNrCalls = lNrHidden = 0;
    const PathCore core(island.graph, from, to);
    std::optional<StepGraph> steps;
    if (nearest > 0) steps.emplace(core.graph, island.KindsOf(core.links), core.to);
    Walker walker(*this, island, core, nearest == 0);
    // A box may open when the focus leaves another control: what happens meanwhile, the walker sees.
    app_.ShowTab(Tab::Kinship);
    if (steps) {
        NearestPaths(*steps, core.from, LimitsOf(app_)).Run(walker, nearest);
    } else {
        PathWalk(core.graph, core.from, core.to).Run(walker);
    }
}

void Search::SortPaths() {
    app_.lvwXref.SetSorted(false);
    // Each sort keeps the earlier order of equal rows.
    for (const auto column : {Kinship::SeqNr, Kinship::NrLink, Kinship::NrSpouses}) {
        app_.lvwKinship.SortBy(column, 0);
    }
    for (const auto column : {Paths::Path, Paths::Links, Paths::Spouses}) app_.lvwPaths.SortBy(column, 0);
}

}  // namespace swiftroll::modKinship
