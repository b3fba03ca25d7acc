// How the window feels: from the start of the process to the first paint, the longest stall of the event loop
// while a file is read, the time that a screen of rows takes while a long table is scrolled, and the times
// of a key of its filter, of the side panel, and from the choice of a kinship path to its picture.
//   windowbench START FILE.ged      START: when the process was started, in nanoseconds since the epoch
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "desktop_application.h"
#include "tables/columns.h"

namespace {

/// Tells when the main window was painted for the first time.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(std::function<void()> onPaint) : onPaint_(std::move(onPaint)) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && onPaint_) std::exchange(onPaint_, nullptr)();
        return false;
    }

  private:
    std::function<void()> onPaint_;
};

/// The longest time between two looks at the event loop.
class StallMeter {
  public:
    StallMeter() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { Tick(); });
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.start(1);
        sinceTick_.start();
    }
    void Tick() {
        const qint64 stall = sinceTick_.nsecsElapsed();
        sinceTick_.start();
        stalls_.push_back(static_cast<double>(stall) / 1e6);
    }
    void Report(const char* what) {
        Tick();
        std::sort(stalls_.rbegin(), stalls_.rend());
        std::printf("%-44s %8.1f ms, then", what, stalls_.empty() ? 0 : stalls_[0]);
        for (std::size_t i = 1; i < std::min<std::size_t>(5, stalls_.size()); ++i)
            std::printf(" %.1f", stalls_[i]);
        std::printf("\n");
    }

  private:
    QTimer timer_;
    QElapsedTimer sinceTick_;
    std::vector<double> stalls_;
};

/// Answers the question of the recalculation with No as soon as it stands there.
void AnswerBoxes(QTimer& timer) {
    QObject::connect(&timer, &QTimer::timeout, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        QAbstractButton* no = box->button(QMessageBox::No);
        if (no == nullptr) no = box->button(QMessageBox::Ok);
        if (no != nullptr) no->click();
    });
    timer.start(10);
}

void MeasureRead(swiftroll::ui::DesktopApplication& program) {
    QTimer answers;
    AnswerBoxes(answers);
    QElapsedTimer watch;
    watch.start();
    StallMeter stalls;
    program.ThePresenter().Act([&] { program.Main().cmdLoad.Click(); });
    std::printf("%-44s %8.0f ms, %d individuals\n", "read", static_cast<double>(watch.nsecsElapsed()) / 1e6,
                program.Main().lvwIn.Count());
    stalls.Report("longest stall during the read");
}

void MeasureScroll(swiftroll::ui::TableView& view) {
    constexpr int kSteps = 500;
    std::vector<double> frames;
    QScrollBar& bar = *view.verticalScrollBar();
    for (int i = 0; i <= kSteps; ++i) {
        QElapsedTimer watch;
        watch.start();
        bar.setValue(static_cast<int>(static_cast<qint64>(bar.maximum()) * i / kSteps));
        view.viewport()->repaint();
        frames.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
    }
    std::sort(frames.begin(), frames.end());
    std::printf("%-44s %8.2f ms, at most %.2f\n", "a screen of rows while scrolling, median",
                frames[frames.size() / 2], frames.back());
}

/// Types a filter key by key, as a user does, and takes it back: the time until the shorter list is painted.
void MeasureFilter(swiftroll::ui::MainWindow& window, swiftroll::Table& table) {
    auto& filter = *window.findChild<QLineEdit*>(QStringLiteral("filter.lvwIn"));
    swiftroll::ui::TableView& view = window.ViewOf(table);
    std::vector<double> keys;
    const auto press = [&](Qt::Key key, const QString& text) {
        QElapsedTimer watch;
        watch.start();
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&filter, &event);
        view.viewport()->repaint();
        keys.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
    };
    const QString texts[] = {QStringLiteral("martin 1850"), QStringLiteral("zq"), QStringLiteral("e"),
                             QStringLiteral("paris m")};
    for (const QString& text : texts) {
        for (const QChar letter : text) press(static_cast<Qt::Key>(letter.toUpper().unicode()), letter);
        for (qsizetype i = 0; i < text.size(); ++i) press(Qt::Key_Backspace, {});
    }
    std::sort(keys.begin(), keys.end());
    std::printf("%-44s %8.2f ms, at most %.2f\n", "a key of the filter, median", keys[keys.size() / 2],
                keys.back());
}

/// From the moment that another row becomes the current one until the panel beside the list shows it.
void MeasurePanel(swiftroll::ui::DesktopApplication& program) {
    constexpr int kSteps = 200;
    constexpr QSize kWide(1366, 768);
    swiftroll::frmMain& main = program.Main();
    program.Window().resize(kWide);
    program.ThePresenter().Act([&] { main.ShowTab(swiftroll::Tab::In); });
    QApplication::processEvents();
    std::vector<double> times;
    for (int i = 0; i < kSteps; ++i) {
        QElapsedTimer watch;
        watch.start();
        program.ThePresenter().Act([&] {
            const auto row = 1 + (main.lvwIn.Count() - 1) * static_cast<std::int64_t>(i) / kSteps;
            main.lvwIn.SetCurrent(main.lvwIn.Item(static_cast<std::int32_t>(row)));
        });
        QApplication::processEvents();
        times.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-44s %8.2f ms, at most %.2f\n", "the side panel after another row, median",
                times[times.size() / 2], times.back());
}

/// From the choice of a path to its picture, over the nearest paths between the first person and the last one
/// of the same island.
void MeasurePicture(swiftroll::ui::DesktopApplication& program) {
    swiftroll::frmMain& main = program.Main();
    const swiftroll::Text from(main.lvwIn.Item(1).Text()),
        island(main.lvwIn.Item(1).Cell(swiftroll::In::IslandNr));
    std::int32_t last = main.lvwIn.Count();
    while (main.lvwIn.Item(last).Cell(swiftroll::In::IslandNr) != island) --last;
    const swiftroll::Text to(main.lvwIn.Item(last).Text());
    program.ThePresenter().Act([&] {
        main.chkNearest.SetChecked(true);
        main.kinshipRequest.FindPathBetween(from, to);
    });
    QApplication::processEvents();
    auto* picture = program.Window().findChild<QWidget*>(QStringLiteral("kinshipView"));
    std::vector<double> times;
    for (std::int32_t i = 1; i <= main.lvwPaths.Count(); ++i) {
        QElapsedTimer watch;
        watch.start();
        program.ThePresenter().Act([&] { main.lvwPaths.SetCurrent(main.lvwPaths.Item(i)); });
        picture->repaint();
        times.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
    }
    if (times.empty()) return;
    std::sort(times.begin(), times.end());
    std::printf("%-44s %8.2f ms, at most %.2f, %zu paths of about %s people\n",
                "from a chosen path to its picture", times[times.size() / 2], times.back(), times.size(),
                std::string(main.lvwPaths.Item(1).Cell(swiftroll::Paths::Links)).c_str());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: windowbench START FILE.ged\n");
        return 2;
    }
    QApplication application(argc, argv);
    swiftroll::ui::SetUpToolkit();
    swiftroll::ui::DesktopApplication program;
    double toFirstPaint = 0;
    FirstPaint firstPaint([&] {
        const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(
                             std::chrono::system_clock::now().time_since_epoch())
                             .count();
        toFirstPaint = static_cast<double>(now - std::atoll(argv[1])) / 1e6;
    });
    if (!program.Start(QString::fromLocal8Bit(argv[2]))) return 1;
    program.Window().centralWidget()->installEventFilter(&firstPaint);
    while (toFirstPaint == 0) QApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
    std::printf("%-44s %8.0f ms\n", "from the start of the process to first paint", toFirstPaint);
    MeasureRead(program);
    QApplication::processEvents();
    MeasureScroll(program.Window().ViewOf(program.Main().lvwIn));
    MeasureFilter(program.Window(), program.Main().lvwIn);
    MeasurePanel(program);
    MeasurePicture(program);
    std::fflush(stdout);
    std::_Exit(0);
}
