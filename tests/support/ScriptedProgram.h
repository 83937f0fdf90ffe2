#pragma once

#include <QTemporaryDir>

#include <string>

#include "ScriptedDialogs.h"
#include "forms/Brelk.h"
#include "platform/Files.h"
#include "platform/TimerScheduler.h"

namespace brelk::doubles {

// What a program runs on in a test: a folder of its own under the build tree,
// a clock that moves only when told, dialogs answered from a script.
struct ScriptedServices {
    QTemporaryDir tmp;
    std::string dir = tmp.path().toStdString();
    TimerScheduler clock;
    ScriptedDialogs dialogs{clock, dir};
    ScriptedWindows windows;
    Services services{clock, dialogs, windows, AppInfo{dir, "Brelk"}};

    // Writes a file of the program's folder; its path.
    std::string put(const std::string& name, const std::string& bytes) const {
        const std::string path = files::join(dir, name);
        files::writeAll(path, bytes);
        return path;
    }
};

// A program on those services, not yet started.
struct ScriptedProgram : ScriptedServices {
    Brelk p{services};
};

struct StartedProgram : ScriptedProgram {
    StartedProgram() { p.start(); }
};

}  // namespace brelk::doubles
