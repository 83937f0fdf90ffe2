// Maps and profile files under faults: signatures, bad values, full disks, races, kills.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>

#include "ScriptedProgram.h"
#include "forms/Lifecycle.h"
#include "map/Loader.h"
#include "settings/IniFile.h"
#include "settings/Settings.h"

using namespace brelk;
namespace fs = std::filesystem;

namespace {

const std::string kBom = "\xEF\xBB\xBF", kOverAMegabyte = "#" + std::string(1 << 20, '-') + "\r\n";

// Runs `work` in a child process; its pid.
pid_t spawn(auto work) {
    const pid_t pid = ::fork();
    if (pid == 0) ::_exit([&] { try { return work(); } catch (...) { return 99; } }());
    return pid;
}

struct Running : Brelk {
    explicit Running(Services& services) : Brelk(services) { start(); }
};

struct Faults : ::testing::Test, doubles::ScriptedServices {
    std::string profile = dir + "/Brelk.ini";
    std::unique_ptr<Running> started() { return std::make_unique<Running>(services); }
    void load(const std::string& name, const std::string& bytes) {
        put(name, bytes);
        dialogs.openAnswers.push_back({name});
        mnuLoad_Click(*started());
    }
};

TEST_F(Faults, AMapsUtf8SignatureIsNoTextAndAMapOverAMegabyteIsRefusedUnread) {
    load("signed.txt", kBom + "# a comment\r\nMega:35\r\n");
    EXPECT_TRUE(dialogs.boxes.empty());
    load("big.txt", "Mega:35\r\n" + kOverAMegabyte);
    EXPECT_NE(dialogs.boxes.at(0).prompt.find("line  0 :"), std::string::npos);
}

TEST_F(Faults, AProfilesUtf8SignatureStaysAndAProfileOverAMegabyteIsNotWritten) {
    for (const std::string& before : {kBom + "[Form]\r\nPosX=1\r\n", kBom})
        EXPECT_EQ(ini::withValue(before, "Form", "PosX", "2"), kBom + "[Form]\r\nPosX=2\r\n");
    EXPECT_FALSE(ini::writeValue(put("big.ini", "[A]\r\nk=1\r\n" + kOverAMegabyte), "A", "k", "2"));
}

TEST_F(Faults, AProfileThatFailsToReadIsCopiedOnceBeforeItIsWrittenOver) {
    for (const char* bad : {"70000", "x"}) {  // the second copy replaces the first
        ASSERT_TRUE(ini::writeValue(profile, "Options", "LastSeconds", bad));
        const auto p = started();
        p->guarded([&] { Form_Unload(*p); });
        EXPECT_EQ(ini::readValue(profile + ".bak", "Options", "LastSeconds"), bad);
    }
}

TEST_F(Faults, AFirstStartOnAFullDiskLeavesNoFileBehind) {
    ::waitpid(spawn([&] {
        const rlimit full{300, 300};  // room for 300 bytes in a file
        ::signal(SIGXFSZ, SIG_IGN);
        return ::setrlimit(RLIMIT_FSIZE, &full) == 0 && started() ? 0 : 1;
    }), nullptr, 0);
    EXPECT_TRUE(fs::is_empty(dir));
}

TEST_F(Faults, TwoCopiesWritingAtOnceLoseNoWrite) {
    const auto write = [&](int first) {  // every other key of a hundred, one write each
        for (int k = first; k < 100; k += 2) ini::writeValue(profile, "Stats", "K" + std::to_string(k), "1");
        return 0;
    };
    const pid_t other = spawn([&] { return write(1); });
    write(0);
    ::waitpid(other, nullptr, 0);
    for (int k = 0; k < 100; ++k) EXPECT_EQ(ini::readValue(profile, "Stats", "K" + std::to_string(k)), "1") << k;
}

TEST_F(Faults, KilledWritesLeaveAWholeProfileAndTheirLitterGoesAtTheNextWrite) {
    const auto stands = [&](const SharedVariable& s) {  // in the profile file, with a value of its kind
        const std::string text = ini::readValue(profile, s.section, s.name);
        return s.stored == Stored::Never || (!text.empty() && readValue(s.kind, text));
    };
    for (int round = 0; round < 40; ++round) {
        if (round % 4 == 0) fs::remove(profile);  // a first start now and then
        const pid_t pid = spawn([&]() -> int { for (auto p = started();;) WriteIniFile(*p, ""); });
        ::usleep(round * 750);  // killed at any moment of its first 30 ms
        ::kill(pid, SIGKILL);
        ::waitpid(pid, nullptr, 0);
        EXPECT_TRUE(!fs::exists(profile) || std::ranges::all_of(sharedVariables(), stands)) << "round " << round;
    }
    put(".Brelk.ini.tmp-1-0", "left by a writer killed long ago");
    put(".Brelk.ini.lock", "");  // left empty by a writer killed as it took the lock: stale after 2 s
    ASSERT_TRUE(ini::writeValue(profile, "Stats", "Launched", "1"));
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 1) << "litter beside the profile";
}

}  // namespace
