// The open dialog starts in the maps' folder: the user's data folder for an
// install, the executable's folder (that of the profile file) when portable.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "map/Loader.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/TimerScheduler.h"
#include "state/Program.h"

namespace {

using namespace brelk;

// Remembers where each open dialog starts, and cancels it.
struct OpenDialogStarts : Dialogs {
    std::vector<std::string> starts;
    std::optional<OpenFileResult> openFile(const OpenFileRequest& request) override {
        starts.push_back(request.initDir);
        return std::nullopt;
    }
    int msgBox(const std::string&, int, const std::string&) override { return msgbox::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::optional<std::int32_t> chooseColor(std::int32_t) override { return std::nullopt; }
    Control* popupMenu(Form&, Control&) override { return nullptr; }
    void showModal(Form&) override {}
};

struct NoWindows : WindowSystem {
    void setTopmost(Form&, bool) override {}
    void shell(const std::string&) override {}
};

std::vector<std::string> loadMapStarts(AppInfo app) {
    TimerScheduler timers;
    OpenDialogStarts dialogs;
    NoWindows windows;
    Services services{timers, dialogs, windows, std::move(app)};
    Program program(services);
    mnuLoad_Click(program);
    return dialogs.starts;
}

TEST(OpenDialog, StartsInTheMapFolderOfAnInstallAndBesideTheProfileWhenPortable) {
    AppInfo installed{"/home/coach/.config/Brelk", "brelk"};
    installed.mapDir = "/home/coach/.local/share/Brelk";
    EXPECT_EQ(loadMapStarts(installed), std::vector<std::string>{"/home/coach/.local/share/Brelk"});
    EXPECT_EQ(loadMapStarts(AppInfo{"/home/coach/brelk", "brelk"}), std::vector<std::string>{"/home/coach/brelk"});
}

}  // namespace
