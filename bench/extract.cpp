// Measures the extract: extractbench FILE.ged reads a family file and writes extracts of all, of half and of
// one hundredth of its individuals, beside a plain copy of the same number of bytes. Prints seconds and MB of
// output a second; reading the file is not counted.
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

#include "quiet_main.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 5;

template <class Work>
double Seconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs `cp`.
void Copy(const fs::path& from, const fs::path& to) {
    const pid_t child = fork();
    if (child == 0) {
        execlp("cp", "cp", from.c_str(), to.c_str(), nullptr);
        _exit(1);
    }
    int status = 0;
    waitpid(child, &status, 0);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fputs("usage: extractbench FILE.ged\n", stderr);
        return 2;
    }
    const fs::path file = arguments[1], extract = file.string() + ".extract", copy = file.string() + ".copy";
    bench::QuietMain app;
    swiftroll::frmMain& main = app.main;
    app.dialogs.file = extract.string();
    app.Read(file.string());
    for (const int step : {1, 2, 100}) {
        for (std::int32_t i = 1; i <= main.lvwIn.Count(); ++i) main.lvwIn.Item(i).SetChecked(i % step == 0);
        double best = 1e9, bestCopy = 1e9;
        for (int round = 0; round < kRounds; ++round) {
            fs::remove(extract);
            fs::remove(copy);
            best = std::min(best, Seconds([&] { main.cmdSaveGed.Click(); }));
            bestCopy = std::min(bestCopy, Seconds([&] { Copy(extract, copy); }));
        }
        const double megabytes = static_cast<double>(fs::file_size(extract)) / 1e6;
        std::printf(
            "extract of 1 in %3d: %6.1f MB in %.3f s, %5.0f MB/s; cp of it %.3f s: %.2f of its speed\n", step,
            megabytes, best, megabytes / best, bestCopy, bestCopy / best);
    }
    fs::remove(extract);
    fs::remove(copy);
    return 0;
}
