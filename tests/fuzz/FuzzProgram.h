#pragma once

#include <QTemporaryDir>

#include <cstdint>
#include <string>

#include "ScriptedDialogs.h"
#include "forms/Brelk.h"
#include "platform/Files.h"
#include "platform/TimerScheduler.h"

namespace brelk::fuzz {

// A started program in a folder of its own, kept for a whole fuzz run.
struct FuzzProgram {
    QTemporaryDir tmp;
    std::string dir = tmp.path().toStdString();
    TimerScheduler clock;
    doubles::ScriptedDialogs dialogs{clock, dir};
    doubles::ScriptedWindows windows;
    Services services{clock, dialogs, windows, AppInfo{dir, "Brelk"}};
    Brelk p{services};

    FuzzProgram() { p.start(); }
};

}  // namespace brelk::fuzz
