#include "state/Program.h"

#include "platform/Dialogs.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"
#include "platform/TimerScheduler.h"

namespace brelk {

Program::Program(Services& services) : sys(services), frmMain(services.timers) {
    frmMain.setErrorReporter([this](const RuntimeError& e) { reportError(e); });
}

Program::~Program() = default;

void Program::start() {
    frmMain.Load();
    if (!ended_) frmMain.self().setVisible(true);
}

void Program::End() {
    ended_ = true;
    sys.timers.stopAll();
    throw ProgramEnded{};
}

bool Program::guarded(const std::function<void()>& action) {
    if (ended_) return false;
    try {
        action();
    } catch (const ProgramEnded&) {
        if (endListener_) endListener_();
        return false;
    }
    return !ended_;
}

void Program::reportError(const RuntimeError& e) {
    // An error no procedure caught: tell the user and go on.
    MsgBox("Run-time error '" + std::to_string(e.number()) + "':\r\n\r\n" + e.what(), msgbox::Critical, "Brelk");
}

int Program::MsgBox(const std::string& prompt, int style, const std::string& title) {
    return dialogs().msgBox(prompt, style, title);
}

}  // namespace brelk
