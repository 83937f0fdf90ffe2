#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "FormView.h"
#include "QtDialogs.h"
#include "RealTimeDriver.h"
#include "platform/Platform.h"
#include "platform/TimerScheduler.h"

namespace brelk {
class Program;
}

namespace brelk::view {

// The executable's name, the base of its profile file, and the folders of
// the profile file and of the maps (see install::programLocations).
AppInfo executableInfo();

// The program on Qt: the platform services, the program, its main window
// and the driver that moves its clock with real time.
class BrelkApp {
public:
    explicit BrelkApp(AppInfo app);
    ~BrelkApp();
    BrelkApp(const BrelkApp&) = delete;
    BrelkApp& operator=(const BrelkApp&) = delete;

    // Opens the main window (its Load event) and starts the clock. False
    // when the program ended while starting.
    bool start();

    Program& program() { return *program_; }
    FormView& window() { return *window_; }
    QtDialogs& dialogs() { return dialogs_; }

    // What features beyond the window's design do when the program ends,
    // after its own end and before the process exits.
    void atEnd(std::function<void()> action) { endActions_.push_back(std::move(action)); }

private:
    TimerScheduler clock_;
    Guard input_;  // what the window's input runs through
    QtDialogs dialogs_;
    QtWindowSystem windows_;
    std::unique_ptr<Services> services_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<FormView> window_;
    std::unique_ptr<RealTimeDriver> driver_;
    std::vector<std::function<void()>> endActions_;
};

}  // namespace brelk::view
