// Measures the search for the nearest paths, the names of paths and the lists of relatives on family files:
// nearbench FILE.ged... bench/kinship calls it. Medians over 50 pairs of people who are far from each other.
#include <algorithm>
#include <cstdio>

#include "cases.h"
#include "measure_nearest.h"
#include "quiet_main.h"

namespace {

constexpr std::size_t kPairs = 50;
/// Files of fewer people answer at once, and have all figures measured.
constexpr std::int32_t kSmallFile = 10'000;
constexpr std::int64_t kFew = 100, kMany = 10'000;
constexpr std::int64_t kNamed = 100'000;

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Print(const char* what, double seconds, double target) {
    std::printf("  %-52s %9.1f ms   < %5.0f ms   %s\n", what, seconds * 1e3, target * 1e3,
                seconds < target ? "met" : "MISSED");
    std::fflush(stdout);
}

using Pairs = std::vector<std::pair<std::string, std::string>>;

void MeasureNearestOf(swiftroll::frmMain& main, const Pairs& pairs, std::int64_t count, double target) {
    std::vector<double> preparation, steps, search;
    std::int64_t paths = 0;
    for (const auto& [from, to] : pairs) {
        const bench::NearestFigures figures = bench::MeasureNearest(main, from, to, count);
        preparation.push_back(figures.preparation);
        steps.push_back(figures.steps);
        search.push_back(figures.search);
        paths += figures.paths;
    }
    std::printf("  %lld nearest, %.0f found: links prepared in %.1f ms, their steps in %.1f ms\n",
                static_cast<long long>(count), static_cast<double>(paths) / static_cast<double>(pairs.size()),
                Median(preparation) * 1e3, Median(steps) * 1e3);
    Print("found and written after that", Median(search), target);
}

/// Names so many paths, the nearest of the first pair that has as many.
void MeasureNames(swiftroll::frmMain& main, const Pairs& pairs) {
    for (const auto& [from, to] : pairs) {
        const std::int64_t paths = bench::MeasureNearest(main, from, to, kNamed).paths;
        if (paths < kNamed) continue;
        const std::int32_t lines = main.lvwKinship.Count() - main.lvwPaths.Count();
        const double seconds = bench::MeasureNames(main);
        std::printf("  %lld paths of %d lines from %s to %s: %.0f names a second\n",
                    static_cast<long long>(paths), lines, from.c_str(), to.c_str(),
                    static_cast<double>(paths) / seconds);
        return Print("their names and degrees", seconds, 1);
    }
}

void MeasureFile(const std::string& file) {
    bench::QuietMain app;
    app.Read(file);
    const std::int32_t people = app.main.lvwIn.Count();
    std::printf("%s: %d people\n", file.substr(file.rfind('/') + 1).c_str(), people);
    if (people == 0) return;
    const bool isSmall = people < kSmallFile;
    const Pairs pairs = bench::FarPairs(app.main, kPairs);
    MeasureNearestOf(app.main, pairs, kFew, isSmall ? 0.01 : 0.1);
    if (isSmall) MeasureNearestOf(app.main, pairs, kMany, 2);
    if (isSmall) MeasureNames(app.main, pairs);
    std::vector<double> relatives;
    std::int64_t found = 0;
    for (const auto& [id, other] : pairs) {
        std::int32_t count = 0;
        relatives.push_back(bench::MeasureRelatives(app.main, id, count));
        found += count;
    }
    std::printf("  relatives of one person, %.0f of them\n",
                static_cast<double>(found) / static_cast<double>(pairs.size()));
    Print("listed", Median(relatives), 1);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    for (int i = 1; i < argumentCount; ++i) MeasureFile(arguments[i]);
    return 0;
}
