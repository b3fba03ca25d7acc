#include "shell/drawing_size.h"

#include <algorithm>

#include "app/large_file.h"
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

std::uint64_t EstimateDrawings(Application& app, const std::vector<std::int32_t>& rows,
                               const WriteDrawings& write) {
    const auto linesOf = [&](const std::vector<std::int32_t>& some) {
        std::int64_t lines = 0;
        for (const std::int32_t row : some) lines += ToLong(app.lvwKinship.Item(row).Cell(Kinship::NrLink));
        return static_cast<double>(lines);
    };
    const double allLines = linesOf(rows);
    if (allLines < kManyLines) return 0;

    Silence silence;
    CountingFiles files;
    const Ports& p = app.ports;
    const Ports quietPorts{silence,     p.clock,    p.events,  files,      p.folders, silence,   p.machine,
                           p.clipboard, p.keyboard, p.desktop, p.settings, p.preview, p.network, p.mail};
    const auto nothing = [] { return Text(); };
    Feedback quiet(quietPorts, app, {nothing, nothing, nothing});
    const modPrivacy::Living living(app, app, p.clock);
    const auto bytesOf = [&](const std::vector<std::int32_t>& some) {
        files.bytes = 0;
        write({app, app, quiet, living}, files, some);
        return static_cast<double>(files.bytes);
    };
    std::vector<std::int32_t> few, more;
    for (std::size_t i = 0; i < std::min(kSamples, rows.size()); ++i) {
        more.push_back(rows[i * rows.size() / std::min(kSamples, rows.size())]);
        if (i % 2 == 0) few.push_back(more.back());
    }
    // What every file has once, such as fonts, does not grow with the paths.
    const double bytes = bytesOf(more), lines = linesOf(more);
    const bool isAll = more.size() == rows.size();
    const double each = isAll ? 0 : std::max(0.0, bytes - bytesOf(few)) / std::max(1.0, lines - linesOf(few));
    return static_cast<std::uint64_t>(bytes + each * (allLines - lines));
}

}  // namespace swiftroll
