// Measures the drawing command: drawingbench [PATHS]. A family in which the children of each couple marry
// among each other gives as many paths as one likes; they are searched, and drawn with spouses into a
// temporary file. Prints paths, cells, seconds of the drawing alone, and cells a second; then the same of the
// first 500 paths as a PDF.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "quiet_main.h"

namespace {

constexpr int kGenerations = 20;
constexpr std::int64_t kPdfPaths = 500;

/// Every man and woman of a generation are children of the couple of the one before, and a couple themselves.
std::string CousinFile() {
    std::string file;
    for (int i = 0; i <= kGenerations; ++i) {
        const std::string n = std::to_string(i), next = std::to_string(i + 1);
        for (const std::string sex : {"M", "F"}) {
            file +=
                "0 @" + sex + n + "@ INDI\n1 NAME Anne-Marie /de Kerviel/\n1 SEX " + sex +
                "\n1 BIRT\n2 DATE 1820\n2 PLAC Saint-Malo, Ille-et-Vilaine, France\n1 DEAT\n2 DATE 1890\n";
        }
        file += "0 @C" + n + "@ FAM\n1 HUSB @M" + n + "@\n1 WIFE @F" + n + "@\n1 MARR\n2 DATE 1842\n";
        if (i < kGenerations) file += "1 CHIL @M" + next + "@\n1 CHIL @F" + next + "@\n";
    }
    return file + "0 TRLR\n";
}

/// Stops the search after a number of paths.
class PathLimit : public bench::QuietPump {
  public:
    void Watch(swiftroll::frmMain& main, std::int64_t most) {
        main_ = &main;
        most_ = most;
    }
    void Yield() override {
        if (main_ != nullptr && main_->kinshipSearch.lNrLinks >= most_) main_->bAbort = true;
    }

  private:
    std::int64_t most_ = 0;
    swiftroll::frmMain* main_ = nullptr;
};

/// Seconds that the drawing command takes for a file.
double Draw(bench::QuietMain<PathLimit>& app, const std::filesystem::path& file) {
    std::filesystem::remove(file);
    app.dialogs.file = file.string();
    app.main.cboKinship.SetText(swiftroll::FileNameToText(file.string()));
    const auto start = std::chrono::steady_clock::now();
    app.main.cmdDrawKinship.Click();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::size_t CountCells(const std::filesystem::path& page) {
    std::ifstream file(page);
    std::size_t cells = 0;
    for (std::string line; std::getline(file, line);) cells += line.starts_with("<table class=") ? 1u : 0u;
    return cells;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::int64_t paths = argumentCount > 1 ? std::atoll(arguments[1]) : 10'000;
    const auto folder = std::filesystem::temp_directory_path() / "swiftroll-drawing";
    std::filesystem::create_directories(folder);
    const auto gedcom = folder / "cousins.ged", page = folder / "page.html", pdf = folder / "pages.pdf";
    std::ofstream(gedcom, std::ios::binary) << CousinFile();

    bench::QuietMain<PathLimit> app;
    swiftroll::frmMain& main = app.main;
    app.Read(gedcom.string());
    main.txtKinH.SetText(main.txtKinWidth.Get());
    app.pump.Watch(main, paths);
    main.kinshipRequest.FindPathBetween("@M0@", "@F" + std::to_string(kGenerations) + "@");

    const double seconds = Draw(app, page);
    const std::size_t cells = CountCells(page);
    std::printf("%lld paths, %zu cells, %.1f MB in %.3f s: %.0f cells a second\n",
                static_cast<long long>(main.kinshipSearch.lNrLinks), cells,
                static_cast<double>(std::filesystem::file_size(page)) / 1e6, seconds,
                static_cast<double>(cells) / seconds);
    main.drawing.lMostDrawings = kPdfPaths;
    const double pdfSeconds = Draw(app, pdf);
    std::printf("%lld of them as a PDF of %.1f MB in %.3f s\n",
                static_cast<long long>(std::min(kPdfPaths, paths)),
                static_cast<double>(std::filesystem::file_size(pdf)) / 1e6, pdfSeconds);
    std::filesystem::remove_all(folder);
    return cells > 0 ? 0 : 1;
}
