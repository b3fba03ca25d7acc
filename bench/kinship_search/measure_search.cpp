#include "measure_search.h"

#include <malloc.h>

#include "kinship/out_link.h"
#include "kinship/path_walk.h"
#include "kinship/remove_islands.h"
#include "stopwatch.h"
#include "support/plain_kinship.h"
#include "tables/columns.h"

namespace bench {
namespace {

using swiftroll::modKinship::IslandGraph;
using swiftroll::modKinship::kNobody;
using swiftroll::modKinship::LinkGraph;
using swiftroll::modKinship::PathCore;
using swiftroll::test::PlainLinks;
using swiftroll::test::PlainPairs;

std::size_t UsedBytes() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Keeps count of the paths of a walk.
class Tally {
  public:
    Tally(WalkFigures& figures, const Limits& limits) : figures_(figures), limits_(limits) {}

    void AddNode(std::int32_t node) { hash_ = (hash_ ^ static_cast<std::uint32_t>(node)) * 0x100000001B3u; }
    /// False when a limit is reached.
    bool EndPath(std::size_t rows) {
        const double now = watch_.Seconds();
        if (figures_.hashes.empty()) {
            figures_.firstPath = now;
        } else {
            figures_.longestDelay = std::max(figures_.longestDelay, now - lastPath_);
        }
        lastPath_ = now;
        hash_ = (hash_ ^ 0xFFFFFFFFu) * 0x100000001B3u;
        figures_.hashes.push_back(hash_);
        figures_.rows += rows;
        return goesOn_ = figures_.hashes.size() < limits_.paths && figures_.rows < limits_.rows;
    }
    bool IsInTime() {
        if (++calls_ % 1024 != 0) return true;
        return isInTime_ = watch_.Seconds() < limits_.seconds;
    }
    void Finish() {
        figures_.seconds = watch_.Seconds();
        figures_.finished = isInTime_ && goesOn_;
    }

  private:
    WalkFigures& figures_;
    const Limits& limits_;
    Stopwatch watch_;
    std::uint64_t hash_ = 0xCBF29CE484222325u;
    double lastPath_ = 0;
    std::uint32_t calls_ = 0;
    bool isInTime_ = true, goesOn_ = true;
};

class BenchVisitor : public swiftroll::modKinship::PathVisitor {
  public:
    BenchVisitor(const PathCore& core, Tally& tally, swiftroll::modKinship::PathWriter* writer,
                 swiftroll::Table& rows)
        : core_(core), tally_(tally), writer_(writer), rows_(rows) {}
    bool Visit(std::int32_t) override { return tally_.IsInTime(); }
    bool GoOn() override { return tally_.IsInTime(); }
    bool Found(std::span<const std::int32_t> links) override {
        const std::int32_t before = rows_.Count();
        if (writer_ != nullptr) writer_->OutLink(++number_, links);
        tally_.AddNode(core_.nodes[static_cast<std::size_t>(core_.from)]);
        for (const std::int32_t link : links) {
            tally_.AddNode(core_.nodes[static_cast<std::size_t>(core_.graph.Target(link))]);
        }
        return tally_.EndPath(writer_ != nullptr ? static_cast<std::size_t>(rows_.Count() - before)
                                                 : links.size() + 1);
    }

  private:
    const PathCore& core_;
    Tally& tally_;
    swiftroll::modKinship::PathWriter* writer_;
    swiftroll::Table& rows_;
    std::int64_t number_ = 0;
};

void Walk(swiftroll::frmMain& main, const PathCore& core, swiftroll::modKinship::PathWriter* writer,
          const Limits& limits, WalkFigures& figures) {
    Tally tally(figures, limits);
    BenchVisitor visitor(core, tally, writer, main.lvwKinship);
    swiftroll::modKinship::PathWalk(core.graph, core.from, core.to).Run(visitor);
    tally.Finish();
}

/// The links of a graph with people from 1.
PlainLinks ToPlain(const LinkGraph& graph) {
    PlainLinks links(static_cast<std::size_t>(graph.NodeCount()) + 1);
    graph.VisitLinks([&](std::int32_t source, std::int32_t link) {
        links[static_cast<std::size_t>(source) + 1].push_back(graph.Target(link) + 1);
    });
    return links;
}

PlainPairs RemovedPairs(const LinkGraph& before, const LinkGraph& after) {
    PlainPairs removed;
    before.VisitLinks([&](std::int32_t source, std::int32_t link) {
        if (after.Target(link) == kNobody) removed.emplace(source + 1, before.Target(link) + 1);
    });
    return removed;
}

}  // namespace

SearchFigures MeasureSearch(swiftroll::frmMain& main, const std::string& from, const std::string& to,
                            const Limits& limits) {
    SearchFigures figures;
    Stopwatch watch;
    main.lvwXref.SortBy(swiftroll::Xref::IDIndi1, 0);
    swiftroll::modKinship::CopyProgress progress;
    const std::string islandNr(main.lvwIn.Item(from).Cell(swiftroll::In::IslandNr));
    AddLvwXref1(main, islandNr, progress);
    IslandGraph island(main);
    figures.copy = watch.Lap();
    const std::int32_t lFrom = island.NodeOf(from), lTo = island.NodeOf(to);
    figures.people = island.graph.NodeCount();
    figures.links = island.graph.LinkCount();
    const LinkGraph whole = island.graph;
    watch.Lap();
    figures.removed =
        swiftroll::modKinshipOptimize::RemoveIslands(island.graph, lFrom, lTo, [] { return true; }).size();
    figures.thinning = watch.Lap();
    const PathCore core(island.graph, lFrom, lTo);
    figures.pruning = watch.Lap();

    main.lvwKinship.Clear();
    const std::size_t before = UsedBytes();
    {
        swiftroll::modKinship::PathWriter writer(main, island, core);
        Walk(main, core, &writer, limits, figures.written);
    }
    const auto rows = static_cast<double>(std::max(main.lvwKinship.Count(), 1));
    figures.bytesPerRow = static_cast<double>(UsedBytes() - before) / rows;
    main.lvwKinship.Clear();
    Walk(main, core, nullptr, limits, figures.walked);

    const Stopwatch thinningWatch;
    PlainLinks plain = ToPlain(whole);
    std::uint32_t calls = 0;
    bool isInTime = true;
    const PlainPairs removed = swiftroll::test::PlainRemoveIslands(plain, lFrom + 1, lTo + 1, [&] {
        if (++calls % 1024 == 0) isInTime = thinningWatch.Seconds() < limits.seconds;
        return isInTime;
    });
    figures.plainThinning = thinningWatch.Seconds();
    figures.plainThinningFinished = isInTime;
    figures.sameLinks = isInTime && removed == RemovedPairs(whole, island.graph);

    plain = ToPlain(island.graph);
    Tally tally(figures.plainWalk, limits);
    swiftroll::test::PlainWalk(
        plain, lFrom + 1, lTo + 1,
        [&](const std::vector<std::int32_t>& path) {
            for (const std::int32_t node : path) tally.AddNode(node - 1);
            return tally.EndPath(path.size());
        },
        [&] { return tally.IsInTime(); });
    tally.Finish();
    return figures;
}

}  // namespace bench
