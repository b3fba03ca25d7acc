#include "shell/drawing_size.h"

#include <algorithm>

#include "app/large_file.h"
#include "drawing/kinship_page.h"
#include "tables/columns.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

// Drawings of fewer lines in all are small.
constexpr std::int64_t kManyLines = 20'000;
constexpr std::size_t kSamples = 16;

/// Tells nothing, asks nothing.
struct Silence : Dialogs, StatusObserver {
    BoxAnswer Show(const MessageBox&) override { return BoxAnswer::Ok; }
    void ShowModal(Window&) override {}
    bool AskFile(const FileRequest&, Text&) override { return false; }
    bool AskColour(std::uint32_t&) override { return false; }
    bool AskFont(CellFont&) override { return false; }
    void PopUp(const Menu&) override {}
    void StatusChanged() override {}
};

/// Every file takes what is written to it and counts the bytes.
class CountingFiles : public Files {
  public:
    std::uint64_t bytes = 0;
    std::unique_ptr<File> Open(TextView, Mode) override { return std::make_unique<Counting>(bytes); }
    bool Exists(TextView) override { return false; }
    bool AreSame(TextView, TextView) override { return false; }
    std::optional<FileStamp> Stamp(TextView) override { return std::nullopt; }
    void Delete(TextView) override {}
    std::optional<std::uint64_t> RoomFor(TextView) override { return std::nullopt; }

  private:
    class Counting : public ByteCount {
      public:
        explicit Counting(std::uint64_t& all) : all_(all) {}
        ~Counting() override { all_ += Bytes(); }

      private:
        std::uint64_t& all_;
    };
};

}  // namespace

std::uint64_t EstimateDrawings(Application& app, TextView sKinshipTitle, std::span<const std::int32_t> rows,
                               bool bSpouses) {
    const auto linesOf = [&](std::int32_t row) -> std::int64_t {
        return ToLong(app.lvwKinship.Item(row).Cell(Kinship::NrLink));
    };
    std::int64_t lines = 0, drawnLines = 0;
    for (const std::int32_t row : rows) lines += linesOf(row);
    if (lines < kManyLines) return 0;

    Silence silence;
    CountingFiles files;
    const Ports& p = app.ports;
    const Ports quietPorts{silence,     p.clock,    p.events,  files,      p.folders, silence,   p.machine,
                           p.clipboard, p.keyboard, p.desktop, p.settings, p.preview, p.network, p.mail};
    const auto nothing = [] { return Text(); };
    Feedback quiet(quietPorts, app, {nothing, nothing, nothing});
    {
        modKinshipOutput::KinshipPage page({app, app, quiet}, sKinshipTitle, app, files, p.clock);
        const std::size_t samples = std::min(kSamples, rows.size());
        for (std::size_t i = 0; i < samples; ++i) {
            const std::int32_t row = rows[i * rows.size() / samples];
            drawnLines += linesOf(row);
            page.DisplayKinship(i == 0 ? 1 : 2,
                                modKinshipOutput::MakeKinshipTable(app, quiet.trail, row, bSpouses));
        }
        page.DisplayKinship(9, {});
    }
    return static_cast<std::uint64_t>(static_cast<double>(files.bytes) * static_cast<double>(lines) /
                                      static_cast<double>(std::max<std::int64_t>(drawnLines, 1)));
}

}  // namespace swiftroll
