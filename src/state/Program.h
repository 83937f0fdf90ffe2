#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "platform/Platform.h"
#include "seam/events/MatchEvent.h"
#include "state/MainForm.h"
#include "state/ModVars.h"

namespace brelk {

class RuntimeError;

// One running program: the shared variables, the main window, the two
// modal windows while they are open, and the platform services it runs on.
// Every procedure and handler works on one of these; a test builds a fresh
// one.
class Program {
public:
    explicit Program(Services& services);
    virtual ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Services& sys;
    ModVars vars;
    MainForm frmMain;
    // Made anew at each opening, gone once closed.
    std::unique_ptr<Form> frmOptions;
    std::unique_ptr<Form> frmAbout;
    // Profile files whose reading failed and that this program has not
    // written since: the first write over one keeps a copy of it.
    std::set<std::string> unreadProfiles;

    // What the features beyond the design hear (see state/Happenings.h), and
    // the source of the command being carried out, if one is.
    seam::EventHub events;
    std::optional<seam::Source> commandSource;
    // The map as the last load left it, and the outline of a load in progress.
    std::shared_ptr<const seam::MapOutline> map;
    struct Loading {
        std::shared_ptr<seam::MapOutline> outline;
        std::string category;
    } loading;

    // Opens the main window: its Load event.
    void start();
    // Stops the program at once, with all its forms and timers.
    [[noreturn]] void End();
    bool ended() const { return ended_; }

    int MsgBox(const std::string& prompt, int style, const std::string& title);
    // The dialogs the program's procedures use: the platform's, or while a
    // command runs, the command's own, which answer instead of showing.
    Dialogs& dialogs() { return dialogsOverride_ ? *dialogsOverride_ : sys.dialogs; }
    void overrideDialogs(Dialogs* dialogs) { dialogsOverride_ = dialogs; }
    // Tells the user of a run-time error that no procedure caught.
    void reportError(const RuntimeError& e);

    // Runs one piece of input (a mouse event, a tick, a command) and absorbs
    // the end of the program, which is then reported to the end listener.
    // Returns false when the program has ended.
    bool guarded(const std::function<void()>& action);
    void setEndListener(std::function<void()> listener) { endListener_ = std::move(listener); }

private:
    bool ended_ = false;
    Dialogs* dialogsOverride_ = nullptr;
    std::function<void()> endListener_;
};

}  // namespace brelk
