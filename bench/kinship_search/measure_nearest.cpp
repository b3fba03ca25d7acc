#include "measure_nearest.h"

#include "kinship/nearest_paths.h"
#include "kinship/out_link.h"
#include "kinship/path_options.h"
#include "kinship/relatives_table.h"
#include "kinship/remove_islands.h"
#include "stopwatch.h"
#include "tables/columns.h"

namespace bench {
namespace {

using namespace swiftroll::modKinship;

/// Writes every path that is found.
class Writing : public PathVisitor {
  public:
    explicit Writing(PathWriter& writer) : writer_(writer) {}
    bool Visit(std::int32_t) override { return true; }
    bool GoOn() override { return true; }
    bool Found(std::span<const std::int32_t> links) override {
        writer_.OutLink(++count_, links);
        return true;
    }
    std::int64_t Count() const { return count_; }

  private:
    PathWriter& writer_;
    std::int64_t count_ = 0;
};

/// What every search between two people does before it walks.
struct Prepared {
    Prepared(swiftroll::frmMain& main, const std::string& from, const std::string& to)
        : island(CopyLinks(main, from)),
          lFrom(island.NodeOf(from)),
          lTo(island.NodeOf(to)),
          core(Simplified(island.graph, lFrom, lTo), lFrom, lTo) {}

    IslandGraph island;
    std::int32_t lFrom, lTo;
    PathCore core;

  private:
    static IslandGraph CopyLinks(swiftroll::frmMain& main, const std::string& from) {
        for (swiftroll::Table* table : {&main.lvwKinship, &main.lvwPaths}) {
            table->Clear();
            table->SetSorted(false);
        }
        main.lvwXref.SortBy(swiftroll::Xref::IDIndi1, 0);
        CopyProgress progress;
        AddLvwXref1(main, std::string(main.lvwIn.Item(from).Cell(swiftroll::In::IslandNr)), progress);
        return IslandGraph(main);
    }
    static const LinkGraph& Simplified(LinkGraph& graph, std::int32_t from, std::int32_t to) {
        swiftroll::modKinshipOptimize::RemoveIslands(graph, from, to, [] { return true; });
        return graph;
    }
};

}  // namespace

NearestFigures MeasureNearest(swiftroll::frmMain& main, const std::string& from, const std::string& to,
                              std::int64_t count) {
    NearestFigures figures;
    ProcessorWatch watch;
    const Prepared links(main, from, to);
    figures.preparation = watch.Lap();
    const StepGraph steps(links.core.graph, links.island.KindsOf(links.core.links), links.core.to);
    figures.steps = watch.Lap();
    PathWriter writer(main, links.island, links.core);
    Writing visitor(writer);
    NearestPaths(steps, links.core.from, LimitsOf(main)).Run(visitor, count);
    figures.search = watch.Lap();
    figures.paths = visitor.Count();
    return figures;
}

double MeasureNames(swiftroll::frmMain& main) {
    const ProcessorWatch watch;
    main.lvwPaths.NeedAll();
    return watch.Seconds();
}

double MeasureRelatives(swiftroll::frmMain& main, const std::string& id, std::int32_t& found) {
    const ProcessorWatch watch;
    ListRelatives(main, main.lvwIn.Item(id).Index(), kUsualDegree, swiftroll::modPrivacy::Living(main));
    found = main.lvwRelatives.Count();
    return watch.Seconds();
}

}  // namespace bench
