#pragma once

#include <string>

#include "platform/Platform.h"
#include "state/MainForm.h"
#include "state/ModVars.h"

namespace brelk {

// One running program: the shared variables, the main window and the platform
// services it runs on. Every procedure and handler works on one of these; a
// test builds a fresh one.
class Program {
public:
    explicit Program(Services& services);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Services& sys;
    ModVars vars;
    MainForm frmMain;

    // Opens the main window: its Load event.
    void start();
    // Stops the program at once, with all its forms and timers.
    [[noreturn]] void End();
    bool ended() const { return ended_; }

    int MsgBox(const std::string& prompt, int style, const std::string& title);

private:
    bool ended_ = false;
};

}  // namespace brelk
