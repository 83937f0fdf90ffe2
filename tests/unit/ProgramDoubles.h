#pragma once

// A headless program over a fresh temporary program directory, with dialogs
// that answer from a queue and remember every message box, for the unit
// tests of map loading, profile files and appearance.

#include <gtest/gtest.h>

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/TimerScheduler.h"
#include "forms/Brelk.h"

namespace brelk::testing {

struct ShownBox {
    std::string prompt;
    int style;
    std::string title;
};

class QueuedDialogs : public Dialogs {
public:
    std::vector<ShownBox> boxes;
    // File names of the program directory the open dialog gives; nullopt cancels.
    std::deque<std::optional<std::string>> openAnswers;
    std::string dir;

    // Called as each message box shows, to look at the program at that moment.
    std::function<void(const ShownBox&)> onBox;

    int msgBox(const std::string& prompt, int style, const std::string& title) override {
        boxes.push_back({prompt, style, title});
        if (onBox) onBox(boxes.back());
        return msgbox::Ok;
    }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::optional<OpenFileResult> openFile(const OpenFileRequest&) override {
        if (openAnswers.empty()) return std::nullopt;
        auto name = openAnswers.front();
        openAnswers.pop_front();
        if (!name) return std::nullopt;
        return OpenFileResult{dir + "/" + *name, *name};
    }
    std::optional<std::int32_t> chooseColor(std::int32_t) override { return std::nullopt; }
    Control* popupMenu(Form&, Control&) override { return nullptr; }
    void showModal(Form&) override {}
};

class RecordingWindows : public WindowSystem {
public:
    std::vector<bool> topmostCalls;
    void setTopmost(Form&, bool topmost) override { topmostCalls.push_back(topmost); }
    bool openUrl(const std::string&) override { return true; }
};

struct ProgramTest : ::testing::Test {
    std::string dir;
    TimerScheduler timers;
    QueuedDialogs dialogs;
    RecordingWindows windows;
    std::unique_ptr<Services> services;
    std::unique_ptr<Program> program;

    void SetUp() override {
        std::string templ = (std::filesystem::temp_directory_path() / "brelk-program-XXXXXX").string();
        dir = mkdtemp(templ.data());
        dialogs.dir = dir;
        services = std::make_unique<Services>(Services{timers, dialogs, windows, AppInfo{dir, "Brelk"}});
        program = std::make_unique<Brelk>(*services);
    }
    void TearDown() override {
        program.reset();
        std::error_code ec;
        std::filesystem::permissions(dir, std::filesystem::perms::owner_all, ec);
        std::filesystem::remove_all(dir, ec);
    }

    Program& p() { return *program; }
    std::string path(const std::string& name) const { return dir + "/" + name; }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path(name), std::ios::binary) << bytes;
    }
    std::string read(const std::string& name) const {
        std::ifstream in(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    // Runs an action that may end the program; true when it did.
    bool ends(const std::function<void()>& action) { return !p().guarded(action); }
};

}  // namespace brelk::testing
