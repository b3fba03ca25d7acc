// Measures the kinship search on files and on graphs made to hurt, beside plain backtracking and a direct
// simplification over the same links: kinshipbench [--seconds S] FILE.ged[=PAIRS]... bench/kinship calls it.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "cases.h"
#include "measure_search.h"
#include "quiet_main.h"

namespace {

using bench::SearchFigures;
using bench::WalkFigures;

/// The worst figures of all cases, for the targets.
struct Worst {
    bool sameSequences = true, sameLinks = true;
    double firstPathOfFiles = 0, slowdown = 0, preparationOfReading = 0, bytesPerRow = 0;
    double rowsPerSecond = 1e12;
};

void PrintHeader() {
    std::printf("%-25s %7s %7s | %6s %6s %6s | %7s %7s %7s %8s %9s %5s | %8s %6s | %8s %7s %8s %6s\n", "", "",
                "", "copy", "thin", "prune", "first", "longest", "", "", "", "bytes", "direct", "same",
                "first", "", "same", "time");
    std::printf("%-25s %7s %7s | %6s %6s %6s | %7s %7s %7s %8s %9s %5s | %8s %6s | %8s %7s %8s %6s\n", "case",
                "people", "links", "ms", "ms", "ms", "ms", "wait ms", "paths", "paths/s", "rows/s", "a row",
                "thin ms", "links", "plain ms", "paths", "paths", "ratio");
}

/// Whether both walks found the same paths as far as both came.
bool IsSameSequence(const WalkFigures& ours, const WalkFigures& plain) {
    const std::size_t common = std::min(ours.hashes.size(), plain.hashes.size());
    if (ours.finished && plain.finished && ours.hashes.size() != plain.hashes.size()) return false;
    return common == 0 || ours.hashes[common - 1] == plain.hashes[common - 1];
}

/// Time per path of our walk over that of plain backtracking, nothing written: below 1 ours is faster.
double Slowdown(const SearchFigures& f) {
    if (f.plainWalk.hashes.empty() || f.walked.hashes.empty()) return 0;
    return f.walked.seconds / static_cast<double>(f.walked.hashes.size()) /
           (f.plainWalk.seconds / static_cast<double>(f.plainWalk.hashes.size()));
}

double RowsPerSecond(const WalkFigures& walk) { return static_cast<double>(walk.rows) / walk.seconds; }

void Print(const std::string& name, const SearchFigures& f, Worst& worst) {
    const WalkFigures& w = f.written;
    const bool same = IsSameSequence(f.walked, f.plainWalk);
    const char* sameLinks = !f.plainThinningFinished ? "-" : f.sameLinks ? "yes" : "NO";
    const bool plainGaveUp = f.plainWalk.hashes.empty() && !f.plainWalk.finished;
    std::printf(
        "%-25s %7d %7d | %6.1f %6.1f %6.1f | %7.1f %7.1f %7zu %8.0f %9.0f %5.0f | %7.1f%s %6s | %7.1f%s %7zu "
        "%8s %6.2f\n",
        name.c_str(), f.people, f.links, f.copy * 1e3, f.thinning * 1e3, f.pruning * 1e3, w.firstPath * 1e3,
        w.longestDelay * 1e3, w.hashes.size(), static_cast<double>(w.hashes.size()) / w.seconds,
        RowsPerSecond(w), f.bytesPerRow, f.plainThinning * 1e3, f.plainThinningFinished ? " " : "+",
        sameLinks, (plainGaveUp ? f.plainWalk.seconds : f.plainWalk.firstPath) * 1e3, plainGaveUp ? "+" : " ",
        f.plainWalk.hashes.size(),
        f.plainWalk.hashes.empty() ? "-"
        : same                     ? "yes"
                                   : "NO",
        Slowdown(f));
    std::fflush(stdout);
    worst.sameSequences &= same;
    worst.sameLinks &= f.sameLinks || !f.plainThinningFinished;
    worst.rowsPerSecond = std::min(worst.rowsPerSecond, RowsPerSecond(w));
    // A person who is shown once has texts of his own; what counts is what every further row takes.
    if (w.rows >= 2 * static_cast<std::size_t>(f.people) && w.rows >= 100'000)
        worst.bytesPerRow = std::max(worst.bytesPerRow, f.bytesPerRow);
}

void MeasureFile(const std::string& argument, const bench::Limits& limits, Worst& worst) {
    const std::size_t sign = argument.rfind('=');
    const std::string file = argument.substr(0, sign);
    std::size_t pairs = 1;
    if (sign != std::string::npos) {
        std::from_chars(argument.data() + sign + 1, argument.data() + argument.size(), pairs);
    }
    bench::QuietMain app;
    const auto start = std::chrono::steady_clock::now();
    app.Read(file);
    const double reading = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("%s: %d people, read in %.1f ms\n", file.substr(file.rfind('/') + 1).c_str(),
                app.main.lvwIn.Count(), reading * 1e3);
    if (app.main.lvwIn.Count() == 0) return;
    for (const auto& [from, to] : bench::FarPairs(app.main, pairs)) {
        const SearchFigures figures = bench::MeasureSearch(app.main, from, to, limits);
        Print(from + " " + to, figures, worst);
        worst.firstPathOfFiles = std::max(worst.firstPathOfFiles, figures.written.firstPath);
        worst.preparationOfReading = std::max(worst.preparationOfReading, figures.Preparation() / reading);
    }
}

SearchFigures MeasureGraph(const char* name, const bench::Graph& graph, const bench::Limits& limits,
                           Worst& worst) {
    bench::QuietMain app;
    bench::Fill(app.main, graph);
    const std::string last = "@I" + std::to_string(graph.to) + "@";
    const SearchFigures figures = bench::MeasureSearch(app.main, "@I0@", last, limits);
    Print(name, figures, worst);
    return figures;
}

void MeasureGraphs(const bench::Limits& limits, Worst& worst) {
    std::printf("graphs made to hurt\n");
    MeasureGraph("ladder of 10 rungs", bench::Ladder(10), limits, worst);
    MeasureGraph("ladder of 1000 rungs", bench::Ladder(1000), limits, worst);
    MeasureGraph("ladder of 100000 rungs", bench::Ladder(100'000), limits, worst);
    MeasureGraph("grid of 5 x 5", bench::Grid(5, 5), limits, worst);
    MeasureGraph("grid of 30 x 30", bench::Grid(30, 30), limits, worst);
    MeasureGraph("grid of 300 x 300", bench::Grid(300, 300), limits, worst);
    MeasureGraph("cliques, a dead one first", bench::Cliques(20, 8), limits, worst);
    MeasureGraph("chain of 1000000", bench::Chain(1'000'000), limits, worst);
    std::printf("graphs without dead ends\n");
    for (const std::int32_t size : {9, 12, 60}) {
        const std::string name = "everybody linked, " + std::to_string(size);
        worst.slowdown = std::max(worst.slowdown,
                                  Slowdown(MeasureGraph(name.c_str(), bench::Complete(size), limits, worst)));
    }
}

void PrintTargets(const Worst& worst) {
    std::printf("\ntargets\n");
    const auto print = [](const char* what, double figure, const char* target, bool met) {
        std::printf("  %-62s %10.2f   %-10s %s\n", what, figure, target, met ? "met" : "MISSED");
    };
    print("same paths wherever both finish (1: yes)", worst.sameSequences ? 1 : 0, "1", worst.sameSequences);
    print("same links wherever both finish (1: yes)", worst.sameLinks ? 1 : 0, "1", worst.sameLinks);
    print("time of plain backtracking, graphs without dead ends, times", worst.slowdown, "<= 1.25",
          worst.slowdown <= 1.25);
    print("first path in files, ms after the preparation", worst.firstPathOfFiles * 1e3, "<= 50",
          worst.firstPathOfFiles <= 0.05);
    print("rows a second into lvwKinship, in thousands", worst.rowsPerSecond / 1e3, ">= 500",
          worst.rowsPerSecond >= 5e5);
    print("preparation in files, times the reading", worst.preparationOfReading, "< 1",
          worst.preparationOfReading < 1);
    print("bytes of memory a row, where people are shown more than once", worst.bytesPerRow, "<= 100",
          worst.bytesPerRow <= 100);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    bench::Limits limits;
    int next = 1;
    if (argumentCount > 2 && std::string_view(arguments[1]) == "--seconds") {
        limits.seconds = std::atof(arguments[2]);
        next = 3;
    }
    std::printf(
        "Searches end after %zu paths, %zu rows or %.0f s; + is where the plain way did not end in time.\n",
        limits.paths, limits.rows, limits.seconds);
    PrintHeader();
    Worst worst;
    for (; next < argumentCount; ++next) MeasureFile(arguments[next], limits, worst);
    MeasureGraphs(limits, worst);
    PrintTargets(worst);
    return 0;
}
