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
    // Puts bytes into a file of the program's folder; its path.
    std::string put(const std::string& name, const std::string& bytes) const {
        files::writeAll(dir + "/" + name, bytes);
        return dir + "/" + name;
    }
    std::string put(const std::string& name, const std::uint8_t* data, std::size_t size) const {
        return put(name, std::string(reinterpret_cast<const char*>(data), size));
    }
};

}  // namespace brelk::fuzz
