#pragma once

#include <string>

namespace brelk {

class Dialogs;
class Form;
class TimerScheduler;

// What the program knows of its executable.
struct AppInfo {
    std::string path;     // folder of the profile file and option sets (beside the executable when portable), no trailing separator
    std::string exeName;  // file name without its extension: the profile file's base
    int major = 1;
    int minor = 0;
    int revision = 0;
    std::string mapDir;   // folder of the maps, where the open dialog starts; empty: path
};

// Window-system operations that are not about one control.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;
    virtual void setTopmost(Form& form, bool topmost) = 0;
    // Starts an external command without waiting for it.
    virtual void shell(const std::string& command) = 0;
};

// The platform services one program runs on.
struct Services {
    TimerScheduler& timers;
    Dialogs& dialogs;
    WindowSystem& windows;
    AppInfo app;
    int screenWidth = 19200;  // twips
};

}  // namespace brelk
