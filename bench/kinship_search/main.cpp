// Measures the kinship search on files and on graphs made to hurt, beside plain backtracking and a literal
// thinning over the same links: kinshipbench [--seconds S] FILE.ged[=PAIRS]... bench/kinship calls it.
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "cases.h"
#include "measure_search.h"
#include "platform/machine.h"
#include "platform/std_files.h"
#include "platform/system_clock.h"
#include "platform/user_folders.h"
#include "quiet_ports.h"
#include "text/code_page.h"

namespace {

/// An application that nobody looks at.
struct Bench {
    bench::QuietDialogs dialogs;
    swiftroll::platform::SystemClock clock;
    bench::QuietPump pump;
    swiftroll::platform::StdFiles files;
    swiftroll::platform::UserFolders folders;
    bench::QuietStatus status;
    swiftroll::platform::ThisMachine machine;
    swiftroll::frmMain main{{dialogs, clock, pump, files, folders, status, machine}};
};

void PrintHeader() {
    std::printf("%-30s %8s %8s | %8s %8s %8s %8s | %9s %8s %8s %9s %9s %6s | %9s %6s %9s %8s %8s %6s\n",
                "case", "people", "links", "copy ms", "thin ms", "prune ms", "removed", "first ms", "paths",
                "rows", "paths/s", "rows/s", "B/row", "plainthin", "links", "1st plain", "plain", "sequence",
                "ratio");
    std::printf("%30s %8s %8s | %8s %8s %8s %8s | %9s %8s %8s %9s %9s %6s | %9s %6s %9s %8s %8s %6s\n", "",
                "", "", "", "", "", "", "delay ms", "", "", "", "", "", "ms", "", "ms", "paths", "", "");
}

/// Whether both found the same paths as far as both came.
const char* Compare(const bench::WalkFigures& ours, const bench::WalkFigures& plain) {
    const std::size_t common = std::min(ours.hashes.size(), plain.hashes.size());
    if (common == 0) return ours.finished && plain.finished ? "same" : "none";
    const bool same = ours.hashes[common - 1] == plain.hashes[common - 1] &&
                      (!ours.finished || !plain.finished || ours.hashes.size() == plain.hashes.size());
    return same ? "same" : "DIFFER";
}

/// Time per path of our walk over that of plain backtracking, nothing written: below 1 ours is faster.
double Ratio(const bench::SearchFigures& f) {
    if (f.plainWalk.hashes.empty() || f.walked.hashes.empty()) return 0;
    return f.walked.seconds / static_cast<double>(f.walked.hashes.size()) /
           (f.plainWalk.seconds / static_cast<double>(f.plainWalk.hashes.size()));
}

void Print(const std::string& name, const bench::SearchFigures& f) {
    const bench::WalkFigures& w = f.written;
    const auto count = static_cast<double>(w.hashes.size());
    std::printf(
        "%-30s %8d %8d | %8.1f %8.1f %8.1f %8zu | %4.1f/%4.1f %8zu %8zu %9.0f %9.0f %6.1f | %8.1f%s %6s "
        "%8.1f%s "
        "%8zu %8s %6.2f\n",
        name.c_str(), f.people, f.links, f.copy * 1e3, f.thinning * 1e3, f.pruning * 1e3, f.removed,
        w.firstPath * 1e3, w.longestDelay * 1e3, w.hashes.size(), w.rows, count / w.seconds,
        static_cast<double>(w.rows) / w.seconds, f.bytesPerRow, f.plainThinning * 1e3,
        f.plainThinningFinished ? " " : "+",
        f.plainThinningFinished ? (f.sameLinks ? "same" : "DIFFER") : "-", f.plainWalk.firstPath * 1e3,
        f.plainWalk.hashes.empty() && !f.plainWalk.finished ? "+" : " ", f.plainWalk.hashes.size(),
        Compare(f.walked, f.plainWalk), Ratio(f));
    std::fflush(stdout);
}

void MeasureFile(const std::string& argument, const bench::Limits& limits) {
    const std::size_t sign = argument.rfind('=');
    const std::string file = argument.substr(0, sign);
    std::size_t pairs = 1;
    if (sign != std::string::npos) {
        std::from_chars(argument.data() + sign + 1, argument.data() + argument.size(), pairs);
    }
    Bench bench;
    bench.main.Form_Load({});
    bench.main.cboGedIn.SetText(swiftroll::FileNameToText(file));
    const auto start = std::chrono::steady_clock::now();
    bench.main.cmdLoad.Click();
    const double reading = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("%s: %d people, read in %.1f ms\n", file.substr(file.rfind('/') + 1).c_str(),
                bench.main.lvwIn.Count(), reading * 1e3);
    if (bench.main.lvwIn.Count() == 0) return;
    for (const auto& [from, to] : bench::FarPairs(bench.main, pairs)) {
        Print(from + " " + to, bench::MeasureSearch(bench.main, from, to, limits));
    }
}

void MeasureGraph(const char* name, const bench::People& people, std::size_t to,
                  const bench::Limits& limits) {
    Bench bench;
    bench.main.Form_Load({});
    bench::Fill(bench.main, people);
    Print(name, bench::MeasureSearch(bench.main, "@I0@", "@I" + std::to_string(to) + "@", limits));
}

}  // namespace

int main(int argumentCount, char** arguments) {
    bench::Limits limits;
    int next = 1;
    if (argumentCount > 2 && std::strcmp(arguments[1], "--seconds") == 0) {
        limits.seconds = std::atof(arguments[2]);
        next = 3;
    }
    std::printf("Walks end after %zu paths, %zu rows or %.0f s; \"+\" is where plain did not end in time.\n",
                limits.paths, limits.rows, limits.seconds);
    PrintHeader();
    for (; next < argumentCount; ++next) MeasureFile(arguments[next], limits);
    std::printf("graphs made to hurt\n");
    MeasureGraph("ladder of 10 rungs", bench::Ladder(10), 19, limits);
    MeasureGraph("ladder of 1000 rungs", bench::Ladder(1000), 1999, limits);
    MeasureGraph("ladder of 100000 rungs", bench::Ladder(100'000), 199'999, limits);
    MeasureGraph("grid of 5 x 5", bench::Grid(5, 5), 24, limits);
    MeasureGraph("grid of 30 x 30", bench::Grid(30, 30), 899, limits);
    MeasureGraph("grid of 300 x 300", bench::Grid(300, 300), 89'999, limits);
    MeasureGraph("20 cliques of 8, one for nothing", bench::Cliques(20, 8), 159, limits);
    MeasureGraph("chain of 1000000 generations", bench::Chain(1'000'000), 999'999, limits);
    MeasureGraph("everybody linked, 12", bench::Complete(12), 11, limits);
    MeasureGraph("everybody linked, 60", bench::Complete(60), 59, limits);
    return 0;
}
