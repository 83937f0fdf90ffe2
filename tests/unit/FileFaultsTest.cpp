// Maps and profile files under faults: a UTF-8 signature, a bad value, a full
// disk, two copies writing at once, killed writes, files far too big.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>

#include <filesystem>
#include <memory>
#include <random>
#include <set>

#include "ScriptedDialogs.h"
#include "forms/Brelk.h"
#include "forms/Lifecycle.h"
#include "map/Loader.h"
#include "platform/Files.h"
#include "platform/TimerScheduler.h"
#include "settings/IniFile.h"
#include "settings/Settings.h"

using namespace brelk;
namespace fs = std::filesystem;

namespace {

const std::string kBom = "\xEF\xBB\xBF";

// Runs `work` in a child process; its pid.
template <typename Work>
pid_t spawn(Work work) {
    const pid_t pid = ::fork();
    if (pid == 0) ::_exit([&] { try { return work(); } catch (...) { return 99; } }());
    return pid;
}
// The child's exit status once it has ended, -1 when it was killed.
int exitStatus(pid_t pid) {
    int status = 0;
    return ::waitpid(pid, &status, 0) == pid && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

struct Faults : ::testing::Test {
    QTemporaryDir tmp;
    std::string dir = tmp.path().toStdString();
    std::string profile = dir + "/Brelk.ini";
    TimerScheduler clock;
    doubles::ScriptedDialogs dialogs{clock, dir};
    doubles::ScriptedWindows windows;
    Services services{clock, dialogs, windows, AppInfo{dir, "Brelk"}};

    std::string put(const std::string& name, const std::string& bytes) const {
        files::writeAll(dir + "/" + name, bytes);
        return dir + "/" + name;
    }
    static std::string bytesOf(const std::string& path) {
        std::string bytes;
        files::readRegularFile(path, bytes);
        return bytes;
    }
    std::set<std::string> entries() const {
        std::set<std::string> names;
        for (const auto& e : fs::directory_iterator(dir)) names.insert(e.path().filename().string());
        return names;
    }
    std::unique_ptr<Brelk> started() {
        dialogs.boxes.clear();
        auto p = std::make_unique<Brelk>(services);
        p->start();
        return p;
    }
    void load(Program& p, const std::string& name, const std::string& bytes) {
        dialogs.boxes.clear();
        dialogs.openAnswers.push_back({fs::path(put(name, bytes)).filename()});
        mnuLoad_Click(p);
    }
    // Every stored key stands in the profile file with a value of its kind.
    bool profileIsWhole() const {
        for (const SharedVariable& s : sharedVariables()) {
            const std::string text = ini::readValue(profile, s.section, s.name);
            if (s.stored != Stored::Never && (text.empty() || !readValue(s.kind, text))) return false;
        }
        return true;
    }
};

TEST_F(Faults, AUtf8SignatureIsNoTextInMapsAndStaysInProfiles) {
    auto p = started();
    const std::string map = bytesOf(BRELK_SOURCE_DIR "/maps/Aerowalk.txt");
    load(*p, "plain.txt", map);
    const auto rows = p->vars.ItemCount;
    load(*p, "signed.txt", kBom + map);
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_EQ(p->vars.ItemCount, rows);

    for (const auto& [before, after] : {std::pair{kBom + "[Form]\r\nPosX=1\r\n", kBom + "[Form]\r\nPosX=2\r\n"},
                                        std::pair{kBom, kBom + "[Form]\r\nPosX=2\r\n"}}) {
        const std::string path = put("signed.ini", before);
        ASSERT_TRUE(ini::writeValue(path, "Form", "PosX", "2"));
        EXPECT_EQ(bytesOf(path), after);
        EXPECT_EQ(ini::readValue(path, "form", "posx"), "2");
    }
}

TEST_F(Faults, AProfileThatFailsToReadIsCopiedOnceBeforeItIsWrittenOver) {
    started();  // a first start: a whole profile, nothing to copy
    for (const char* bad : {"70000", "x"}) {
        ASSERT_TRUE(ini::writeValue(profile, "Colors", "FormColor", "255"));
        ASSERT_TRUE(ini::writeValue(profile, "Options", "LastSeconds", bad));
        auto p = started();
        EXPECT_EQ(dialogs.boxes.size(), 1u);
        const std::string asItWas = bytesOf(profile);
        p->guarded([&] { Form_Unload(*p); });
        EXPECT_EQ(bytesOf(profile + ".bak"), asItWas);
        EXPECT_EQ(ini::readValue(profile, "Options", "LastSeconds"), "5");  // written as designed
    }
    EXPECT_EQ(entries(), (std::set<std::string>{"Brelk.ini", "Brelk.ini.bak"}));
}

TEST_F(Faults, AFirstStartOnAFullDiskLeavesNoProfileAndTheNextOneAWholeProfile) {
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{300, limit.rlim_max};
    const auto oldHandler = ::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    started();
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ::signal(SIGXFSZ, oldHandler);
    EXPECT_FALSE(fs::exists(profile));
    started();
    EXPECT_TRUE(profileIsWhole());
}

TEST_F(Faults, TwoCopiesWritingAtOnceLoseNoWrite) {
    std::vector<pid_t> writers;
    for (const char* key : {"First", "Second"})
        writers.push_back(spawn([&] {
            int lost = 0;  // each copy reads back its own key before it writes it anew
            for (int i = 1; i <= 50; ++i) {
                lost += ini::readValue(profile, "Stats", key) != (i == 1 ? "" : std::to_string(i - 1));
                ini::writeValue(profile, "Stats", key, std::to_string(i));
            }
            return lost;
        }));
    for (const pid_t pid : writers) EXPECT_EQ(exitStatus(pid), 0);
    EXPECT_EQ(ini::readValue(profile, "Stats", "First"), "50");
    EXPECT_EQ(ini::readValue(profile, "Stats", "Second"), "50");
}

TEST_F(Faults, KilledWritesLeaveAWholeProfileAndTheirLitterGoesAtTheNextWrite) {
    std::mt19937 random(12);
    for (int round = 0; round < 40; ++round) {
        if (round % 4 == 0) fs::remove(profile);  // a first start now and then
        const pid_t pid = spawn([&] {
            for (auto p = started();;) WriteIniFile(*p, "");
            return 0;
        });
        ::usleep(std::uniform_int_distribution<useconds_t>(0, 30000)(random));
        ::kill(pid, SIGKILL);
        exitStatus(pid);
        EXPECT_TRUE(!fs::exists(profile) || profileIsWhole()) << "round " << round;
    }
    put(".Brelk.ini.tmp-1-0", "left by a writer killed long ago");
    ASSERT_TRUE(ini::writeValue(profile, "Stats", "Launched", "1"));
    EXPECT_EQ(entries(), std::set<std::string>{"Brelk.ini"});
}

TEST_F(Faults, AProfileOrMapOverAMegabyteIsRefusedUnread) {
    const std::string padding = "#" + std::string(1 << 20, '-') + "\r\n";
    const std::string big = put("big.ini", "[A]\r\nk=1\r\n" + padding);
    EXPECT_EQ(ini::readValue(big, "A", "k"), "");
    EXPECT_FALSE(ini::writeValue(big, "A", "k", "2"));
    EXPECT_EQ(fs::file_size(big), 10 + padding.size());

    auto p = started();
    load(*p, "small.txt", "Mega:35\r\nQuad:120\r\n");
    load(*p, "big.txt", "Mega:35\r\n" + padding);
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_NE(dialogs.boxes[0].prompt.find("line  0 :"), std::string::npos);
    EXPECT_EQ(p->vars.ItemCount, 2);
}

TEST(FileWildcards, AStarMatchesAnyRunOfCharactersAlsoStars) {
    struct Case { const char* name; const char* pattern; bool matches; };
    for (const Case& c : {Case{"a*b", "a*", true}, {"*x.set", "*.set", true}, {"**", "*", true},
                          {"a*b", "a*c", false}, {"x.set.bak", "*.set", false}})
        EXPECT_EQ(files::matchesPattern(c.name, c.pattern), c.matches) << c.name << " " << c.pattern;
}

}  // namespace
