// A match in the real event loop: the main window offscreen, the match clock
// going and 40 rows counting for a configurable real time
// (BRELK_BENCH_SECONDS, 60 by default). Reports lost ticks, tick lateness,
// CPU time per minute of match, peak memory, the time from process start to
// the first painted main window, and the time to load a 1,000-row map.
// Exits non-zero when a tick was lost. With BRELK_BENCH_CALLOUTS=1 the
// spoken call-outs watch the match as well.

#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "assembly/BrelkApp.h"
#include "callouts/CallOuts.h"
#include "forms/Brelk.h"
#include "map/Loader.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/TimerScheduler.h"
#include "seam/Seam.h"
#include "state/TimeText.h"
#include "view/services/RealTimeDriver.h"
#include "view/window/MainWindow.h"

using namespace brelk;

namespace {

constexpr int kRows = 40;
constexpr int kRowDelay = 3000;  // seconds: every row counts for the whole run

class BenchDialogs : public Dialogs {
public:
    std::string dir, file;
    int boxes = 0;
    int msgBox(const std::string&, int, const std::string&) override { return ++boxes, msgbox::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::optional<OpenFileResult> openFile(const OpenFileRequest&) override {
        return OpenFileResult{files::join(dir, file), file};
    }
    std::optional<std::int32_t> showColor(const ColorRequest&) override { return std::nullopt; }
    Control* popupMenu(Form&, Control&) override { return nullptr; }
    void showModal(Form&) override {}
};

// Stands for the speech engine: each call takes 0.9 s.
class BenchVoice : public callouts::Voice {
public:
    int calls = 0;
    void say(const callouts::Call&, std::function<void()> done) override {
        ++calls;
        QTimer::singleShot(900, [done = std::move(done)] { done(); });
    }
};

class NoWindows : public WindowSystem {
public:
    void setTopmost(Form&, bool) override {}
    bool openUrl(const std::string&) override { return true; }
    int screenWidth() const override { return 19200; }
};

double cpuSeconds() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return static_cast<double>(u.ru_utime.tv_sec + u.ru_stime.tv_sec) +
           static_cast<double>(u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
}

double peakMb() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return static_cast<double>(u.ru_maxrss) / 1024.0;
}

void writeMap(const std::string& path, int rows, int delay) {
    std::ofstream out(path, std::ios::binary);
    for (int i = 0; i < rows; ++i) {
        if (i % 10 == 0) out << ":Group " << i / 10 + 1 << "\r\n";
        out << "Item" << i % 100 << " ICO_RA:" << delay << "\r\n";
    }
}

double percentile(std::vector<double> v, double p) {
    if (v.empty()) return 0;
    std::sort(v.begin(), v.end());
    return v[static_cast<std::size_t>(std::lround(p * static_cast<double>(v.size() - 1)))];
}

// One program with its main window, over a temporary directory, driven by
// real time as the program is.
struct Bench {
    QTemporaryDir dir;
    TimerScheduler clock;
    BenchDialogs dialogs;
    NoWindows windows;
    std::unique_ptr<Services> services;
    std::unique_ptr<Program> program;
    std::unique_ptr<view::RealTimeDriver> driver;
    view::Guard input;
    std::unique_ptr<view::FormView> window;
    // Wraps the driver's work when set, to time it.
    std::function<bool(const std::function<void()>&)> onTicks;

    Bench() {
        dialogs.dir = dir.path().toStdString();
        services = std::make_unique<Services>(
            Services{clock, dialogs, windows, AppInfo{dialogs.dir, "brelk"}});
        program = std::make_unique<Brelk>(*services);
        const view::Guard guarded = [this](const std::function<void()>& a) { return program->guarded(a); };
        driver = std::make_unique<view::RealTimeDriver>(clock, [this](const std::function<void()>& a) {
            return onTicks ? onTicks(a) : program->guarded(a);
        });
        input = driver->inputGuard(guarded);
        window = view::createMainWindow(program->frmMain, input);
        program->guarded([&] { program->start(); });
        window->show();
    }
    MainForm& f() { return program->frmMain; }
    // A left click on a control, as the window hands it to the form.
    void click(Control& c) {
        input([&] {
            f().mouseDown(c, button::Left);
            f().mouseUp(c, button::Left);
            f().click(c);
        });
    }
    void load(const std::string& name) {
        dialogs.file = name;
        input([&] { mnuLoad_Click(*program); });
    }
};

// Child mode: the program as it starts, until its window is painted.
int startupProbe(int argc, char** argv) {
    QApplication app(argc, argv);
    QTemporaryDir dir;
    assembly::BrelkApp brelk(AppInfo{dir.path().toStdString(), "brelk"});
    brelk.window().onFirstPaint = [] {
        std::printf("painted\n");
        std::fflush(stdout);
        std::_Exit(0);
    };
    if (!brelk.start()) return 1;
    return QApplication::exec();
}

// Milliseconds from the start of a fresh process to its first painted window.
std::vector<double> measureStartups(const char* self, int runs) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QProcess probe;
        QElapsedTimer t;
        t.start();
        probe.start(QString::fromLocal8Bit(self), {"--startup-probe"});
        if (!probe.waitForReadyRead(10000)) continue;
        const double ms = static_cast<double>(t.nsecsElapsed()) / 1e6;
        probe.waitForFinished(5000);
        if (probe.readAllStandardOutput().contains("painted")) times.push_back(ms);
    }
    return times;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::string(argv[1]) == "--startup-probe") return startupProbe(argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const int seconds = qEnvironmentVariableIsSet("BRELK_BENCH_SECONDS")
                            ? std::max(1, qEnvironmentVariableIntValue("BRELK_BENCH_SECONDS"))
                            : 60;
    const std::vector<double> startups = measureStartups(argv[0], 7);

    QApplication app(argc, argv);

    // The match. The clock counts up; the rows are clicked one after the
    // other, 20 ms apart, so that their ticks spread over the second.
    Bench match;
    match.program->vars.MatchDuration = "546:00";
    // Call-outs watch every change of the window. The rows count for the
    // whole run, so the calls made are the match's: its last minute starts
    // 30 s before the end of the run.
    const bool callOutsOn = qEnvironmentVariableIntValue("BRELK_BENCH_CALLOUTS") != 0;
    BenchVoice voice;
    seam::Seam seam(*match.program, match.input);
    std::unique_ptr<callouts::CallOuts> callOuts;
    if (callOutsOn) {
        callOuts = std::make_unique<callouts::CallOuts>(seam, voice);
        callOuts->setChoices({callouts::Sound::Voice, 30, true, true, 100});
        match.program->vars.MatchDuration = Minutes(static_cast<std::int16_t>(seconds + 30));
    }
    writeMap(files::join(match.dialogs.dir, "match.txt"), kRows, kRowDelay);
    match.load("match.txt");
    auto& f = match.f();
    if (match.program->vars.ItemCount != kRows) std::fprintf(stderr, "the match map did not load whole\n");

    std::vector<double> lateMs;       // wake-up after the first tick due
    std::vector<double> lateLastMs;   // the last tick of the same wake-up
    std::int64_t pendingLateUs = -1;
    match.driver->onWake = [&](std::int64_t lateUs) { pendingLateUs = lateUs; };
    QElapsedTimer batch;
    // The driver's work, timed: how long the ticks of one wake-up take.
    match.onTicks = [&](const std::function<void()>& a) {
        batch.start();
        const bool going = match.program->guarded(a);
        if (pendingLateUs >= 0) {
            lateMs.push_back(static_cast<double>(pendingLateUs) / 1000.0);
            lateLastMs.push_back(static_cast<double>(pendingLateUs + batch.nsecsElapsed() / 1000) / 1000.0);
        }
        pendingLateUs = -1;
        return going;
    };

    std::int64_t matchStart = 0;
    std::vector<std::int64_t> rowStart(kRows + 1, 0);
    std::vector<long> blinkTicks(kRows + 1, 0);  // the start's blink, as the row's blink timer holds it
    const std::uint64_t ticksBefore = match.clock.ticksFired();
    QElapsedTimer wall;
    const double cpuBefore = cpuSeconds();
    match.driver->start();
    wall.start();
    match.click(f.lblMatchTimer());
    matchStart = match.clock.now();
    for (int i = 1; i <= kRows; ++i)
        QTimer::singleShot(100 + 20 * i, Qt::PreciseTimer, &app, [&, i] {
            match.click(f.lblFond(static_cast<std::int16_t>(i)));
            rowStart[i] = match.clock.now();
            blinkTicks[i] = static_cast<long>(std::lround(
                std::strtod(f.timerClick(static_cast<std::int16_t>(i)).tag().c_str(), nullptr)));
        });
    // The end falls 90 ms after the last row's tick of that second.
    QTimer::singleShot(seconds * 1000 + 990, Qt::PreciseTimer, &app, [] { QCoreApplication::exit(0); });
    app.exec();
    const std::int64_t end = wall.elapsed() + matchStart;
    const double cpu = cpuSeconds() - cpuBefore;
    const double elapsed = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    const double matchPeak = peakMb();
    match.onTicks = nullptr;

    // What a perfect clock shows at the end, and what the window shows.
    long expected = (end - matchStart) / 1000;
    long shown = static_cast<long>(Secondes(f.lblMatchTimer().caption()));
    long expectedTicks = expected;
    for (int i = 1; i <= kRows; ++i) {
        const long due = (end - rowStart[i]) / 1000;
        expectedTicks += due + blinkTicks[i];
        expected += due;
        shown += kRowDelay - static_cast<long>(Secondes(f.lblTimer(static_cast<std::int16_t>(i)).caption()));
    }
    const long fired = static_cast<long>(match.clock.ticksFired() - ticksBefore);
    const std::string clockShown = f.lblMatchTimer().caption();
    const std::string clockExpected = Minutes(static_cast<std::int16_t>((end - matchStart) / 1000));
    match.window.reset();

    // Loading a 1,000-row map into a window already on screen, with the
    // widgets following, then the window painted. Three fresh programs.
    std::vector<double> loads, paints;
    for (int run = 0; run < 3; ++run) {
        Bench big;
        QCoreApplication::processEvents();
        writeMap(files::join(big.dialogs.dir, "big.txt"), 1000, 30);
        QElapsedTimer t;
        t.start();
        big.load("big.txt");
        loads.push_back(static_cast<double>(t.nsecsElapsed()) / 1e6);
        QCoreApplication::processEvents();  // the window's repaint
        paints.push_back(static_cast<double>(t.nsecsElapsed()) / 1e6);
        if (big.program->vars.ItemCount != 1000) std::fprintf(stderr, "the big map did not load whole\n");
    }

    std::printf("match                    %.2f s of real time (BRELK_BENCH_SECONDS %d), %d rows counting\n", elapsed,
                seconds, kRows);
    std::printf("call-outs                %s, %d calls\n", callOutsOn ? "on" : "off", voice.calls);
    std::printf("ticks fired              %ld, a perfect clock: %ld\n", fired, expectedTicks);
    std::printf("seconds shown            %ld by the clock and the rows, a perfect clock: %ld\n", shown, expected);
    std::printf("clock reads              %s, a perfect clock: %s\n", clockShown.c_str(), clockExpected.c_str());
    std::printf("lost ticks               %ld (target 0)\n", expectedTicks - fired);
    std::printf("tick lateness ms         first of a wake-up p50 %.3f  p99 %.3f  max %.3f\n", percentile(lateMs, 0.5),
                percentile(lateMs, 0.99), lateMs.empty() ? 0.0 : *std::max_element(lateMs.begin(), lateMs.end()));
    std::printf("                         last of a wake-up  p50 %.3f  p99 %.3f  max %.3f (target p99 < 5)\n",
                percentile(lateLastMs, 0.5), percentile(lateLastMs, 0.99),
                lateLastMs.empty() ? 0.0 : *std::max_element(lateLastMs.begin(), lateLastMs.end()));
    std::printf("wake-ups                 %zu\n", lateMs.size());
    std::printf("cpu per match minute     %.3f s (target < 1)\n", cpu / elapsed * 60);
    std::printf("peak memory              %.1f MB during the match (target < 40), %.1f MB after the big load\n",
                matchPeak, peakMb());
    std::printf("start to first paint     %.1f ms median of %zu, min %.1f, max %.1f (target < 300)\n",
                percentile(startups, 0.5), startups.size(),
                startups.empty() ? 0.0 : *std::min_element(startups.begin(), startups.end()),
                startups.empty() ? 0.0 : *std::max_element(startups.begin(), startups.end()));
    std::printf("load 1,000-row map       %.1f ms median of 3 (max %.1f), painted after %.1f ms (target < 200)\n",
                percentile(loads, 0.5), *std::max_element(loads.begin(), loads.end()), percentile(paints, 0.5));
    return shown == expected && fired == expectedTicks && clockShown == clockExpected ? 0 : 1;
}
