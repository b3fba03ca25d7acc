#include "cases.h"

#include <algorithm>
#include <map>

#include "gedcom/links.h"
#include "kinship/island_links.h"
#include "tables/columns.h"
#include "text/literal.h"

namespace bench {
namespace {

using swiftroll::Text;
using swiftroll::TextRef;

/// People without links, the last of whom is the one to find.
Graph Unlinked(std::int32_t count) {
    return {std::vector<std::vector<std::int32_t>>(static_cast<std::size_t>(count)), count - 1};
}

void Link(Graph& graph, std::int32_t a, std::int32_t b) {
    graph.links[static_cast<std::size_t>(a)].push_back(b);
    graph.links[static_cast<std::size_t>(b)].push_back(a);
}

void LinkAll(Graph& graph, std::int32_t first, std::int32_t count) {
    for (std::int32_t a = first; a < first + count; ++a) {
        for (std::int32_t b = a + 1; b < first + count; ++b) Link(graph, a, b);
    }
}

}  // namespace

Graph Ladder(std::int32_t rungs) {
    Graph graph = Unlinked(2 * rungs);
    for (std::int32_t i = 0; i < rungs; ++i) {
        Link(graph, 2 * i, 2 * i + 1);
        for (std::int32_t side = 0; i + 1 < rungs && side < 2; ++side)
            Link(graph, 2 * i + side, 2 * i + 2 + side);
    }
    return graph;
}

Graph Grid(std::int32_t width, std::int32_t height) {
    Graph graph = Unlinked(width * height);
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::int32_t here = y * width + x;
            if (x + 1 < width) Link(graph, here, here + 1);
            if (y + 1 < height) Link(graph, here, here + width);
        }
    }
    return graph;
}

Graph Cliques(std::int32_t groups, std::int32_t size) {
    const std::int32_t chain = groups * size;
    Graph graph = Unlinked(chain + size);
    graph.to = chain - 1;
    const std::int32_t middle = groups / 2 * size;
    // The way that leads nowhere is tried first.
    Link(graph, middle, chain);
    Link(graph, middle + 1, chain + 1);
    LinkAll(graph, chain, size);
    for (std::int32_t group = 0; group < groups; ++group) {
        const std::int32_t first = group * size;
        LinkAll(graph, first, size);
        for (std::int32_t i = 0; group + 1 < groups && i < 2; ++i)
            Link(graph, first + size - 1 - i, first + size + i);
    }
    return graph;
}

Graph Chain(std::int32_t generations) {
    Graph graph = Unlinked(generations);
    for (std::int32_t i = 0; i + 1 < generations; ++i) Link(graph, i, i + 1);
    return graph;
}

Graph Complete(std::int32_t size) {
    Graph graph = Unlinked(size);
    LinkAll(graph, 0, size);
    return graph;
}

void Fill(swiftroll::frmMain& main, const Graph& graph) {
    swiftroll::TextStore& store = main.lvwIn.Store();
    std::vector<TextRef> ids;
    const TextRef island = store.Intern("0001");
    for (std::size_t i = 0; i < graph.links.size(); ++i) {
        ids.push_back(store.Intern("@I" + std::to_string(i) + "@"));
        swiftroll::Row row = main.lvwIn.Add(std::nullopt, swiftroll::RowKey(ids.back()), ids.back());
        row.SetCell(swiftroll::In::LastName, "N" + std::to_string(i));
        row.SetCell(swiftroll::In::IslandNr, island);
    }
    swiftroll::modReadGedcom::Links links(main);
    const swiftroll::modReadGedcom::LinkWords& words = links.Words();
    for (std::size_t a = 0; a < graph.links.size(); ++a) {
        for (const std::int32_t neighbour : graph.links[a]) {
            const auto b = static_cast<std::size_t>(neighbour);
            const TextRef family = store.Intern("@F" + std::to_string(std::min(a, b)) + "@");
            links.AddXrefXRef(ids[a], a < b ? words.Father : words.Son, ids[b], {}, {}, family, family);
        }
    }
}

std::vector<std::pair<std::string, std::string>> FarPairs(swiftroll::frmMain& main, std::size_t count) {
    std::map<Text, std::int32_t> sizes;
    for (std::int32_t i = 1; i <= main.lvwIn.Count(); ++i) {
        ++sizes[Text(main.lvwIn.Item(i).Cell(swiftroll::In::IslandNr))];
    }
    const auto biggest = std::max_element(sizes.begin(), sizes.end(),
                                          [](const auto& a, const auto& b) { return a.second < b.second; });
    swiftroll::modKinship::CopyProgress progress;
    main.lvwXref.SortBy(swiftroll::Xref::IDIndi1, 0);
    AddLvwXref1(main, biggest->first, progress);
    const swiftroll::modKinship::IslandGraph island(main);
    const auto nodeCount = static_cast<std::size_t>(island.graph.NodeCount());
    const auto farthest = [&](std::int32_t from) {
        std::vector<std::uint8_t> isReached(nodeCount);
        std::vector<std::int32_t> reached{from};
        isReached[static_cast<std::size_t>(from)] = 1;
        for (std::size_t i = 0; i < reached.size(); ++i) {
            const auto links = island.graph.LinksOf(reached[i]);
            for (std::int32_t link = links.first; link < links.last; ++link) {
                const std::int32_t other = island.graph.Target(link);
                if (other == swiftroll::modKinship::kNobody ||
                    isReached[static_cast<std::size_t>(other)]++ != 0) {
                    continue;
                }
                reached.push_back(other);
            }
        }
        return reached.back();
    };
    const auto idOf = [&](std::int32_t node) {
        return Text(main.lvwIn.Store().Get(island.ids[static_cast<std::size_t>(node)]));
    };
    std::vector<std::pair<std::string, std::string>> pairs;
    for (std::size_t i = 0; i < count; ++i) {
        const auto from = static_cast<std::int32_t>(nodeCount * i / count);
        pairs.emplace_back(idOf(from), idOf(farthest(from)));
    }
    return pairs;
}

}  // namespace bench
