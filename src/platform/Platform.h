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
    // The program's version: the one the build declares for the project.
    int major = BRELK_VERSION_MAJOR;
    int minor = BRELK_VERSION_MINOR;
    int revision = BRELK_VERSION_PATCH;
    std::string mapDir;   // folder of the maps, where the open dialog starts; empty: path
};

// The picture a control holds when it shows the program's own icon.
inline constexpr const char* kProgramIconPicture = "App.Icon";

// Window-system operations that are not about one control.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;
    virtual void setTopmost(Form& form, bool topmost) = 0;
    // Hands an address to the desktop, which shows it in the user's web
    // browser; returns at once. False when the desktop could start nothing
    // to show it.
    virtual bool openUrl(const std::string& address) = 0;
    // The width of the screen the main window stands on, in twips as the
    // main window is drawn.
    virtual int screenWidth() const = 0;
};

// The platform services one program runs on.
struct Services {
    TimerScheduler& timers;
    Dialogs& dialogs;
    WindowSystem& windows;
    AppInfo app;
};

}  // namespace brelk
