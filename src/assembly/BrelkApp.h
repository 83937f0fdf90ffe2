#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Platform.h"
#include "platform/TimerScheduler.h"
#include "seam/qt/Host.h"
#include "view/services/QtDialogs.h"
#include "view/window/ViewContext.h"

namespace brelk {
class Program;
namespace seam {
class Seam;
}
namespace view {
class FormView;
class Notice;
class RealTimeDriver;
}  // namespace view
namespace callouts::qt {
class QtCallOuts;
}
namespace zoom::qt {
class QtZoom;
}
}  // namespace brelk

namespace brelk::assembly {

// The executable's name, the base of its profile file, and the folders of
// the profile file and of the maps (see install::programLocations).
AppInfo executableInfo();

// What a test may put in place of the real thing.
struct Options {
    // The clock follows real time; without, it moves only when the test says.
    bool realTime = true;
    // The program's end ends the application's event loop, and with it the
    // process; a test that goes on after the end says no.
    bool exitAtEnd = true;
};

// The whole program as it runs: the platform services on Qt, the designed
// program, its main window and the driver that moves its clock with real
// time, the seam, and every feature beyond the design on it. The one host
// of those features: what main() runs, and what the window tests start.
class BrelkApp : public seam::qt::Host {
public:
    explicit BrelkApp(AppInfo app, Options options = {});
    ~BrelkApp() override;
    BrelkApp(const BrelkApp&) = delete;
    BrelkApp& operator=(const BrelkApp&) = delete;

    // Opens the main window (its Load event) and starts the clock. False
    // when the program ended while starting.
    bool start();

    Program& program() { return *program_; }
    view::FormView& window() { return *window_; }
    view::QtDialogs& dialogs() { return dialogs_; }
    TimerScheduler& clock() { return clock_; }

    // The host of the features.
    seam::Seam& seam() override { return *seam_; }
    void addMenu(std::function<void(QMenu&)> add) override;
    void notice(const QString& text) override;
    QWidget& mainWindow() override;
    double zoom() const override;
    void setZoom(double zoom) override;
    void atEnd(std::function<void()> action) override { endActions_.push_back(std::move(action)); }

private:
    TimerScheduler clock_;
    view::Guard input_;  // what the window's input runs through
    view::QtDialogs dialogs_;
    view::QtWindowSystem windows_;
    std::unique_ptr<Services> services_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<view::FormView> window_;
    std::unique_ptr<view::RealTimeDriver> driver_;
    std::unique_ptr<seam::Seam> seam_;
    std::unique_ptr<view::Notice> notice_;
    std::vector<std::function<void()>> endActions_;
    Options options_;
    // What the program tells that the coach must hear of without a box.
    std::unique_ptr<class Notices> notices_;
    // The features beyond the design, made last and gone first.
    std::unique_ptr<callouts::qt::QtCallOuts> callOuts_;
    std::unique_ptr<zoom::qt::QtZoom> zoom_;
};

}  // namespace brelk::assembly
