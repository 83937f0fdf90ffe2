// Option sets written and read back, the reading of each kind of profile
// value, and the program's profile file where it cannot be written.

#include <sys/stat.h>

#include <optional>
#include <string>

#include "ProgramDoubles.h"
#include "settings/Settings.h"
#include "forms/Lifecycle.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

struct Sets : ProgramTest {};

TEST_F(Sets, ASetWrittenAndReadBackRestoresEverySettingButNotTheWindow) {
    p().start();
    auto& v = p().vars;
    // Every setting at a value unlike the built-in ones.
    v.ListColor = 0, v.LastSeconds = 9, v.LastFlash = 4, v.ActiveTimerBold = 0, v.IdleTimerBold = -1;
    v.ActiveItemBold = 0, v.IdleItemBold = 0, v.CategoryBold = -1, v.MapName3D = 0, v.MatchTimerReverse = -1;
    v.ShowItemsTimers = 0, v.MatchDuration = "12:00", v.FormColor = 255, v.ListColor1 = 1, v.ListColor2 = 2;
    v.IdleTimerColor = 3, v.ActiveTimerColor = 4, v.IdleItemColor = 5, v.ActiveItemColor = 6;
    v.LastSecondsTimerColor = 7, v.CategoryColor = 8, v.MapNameColor = 9, v.MatchTimerColor = 10;
    v.LastMinuteMatchTimerColor = 16777215, v.PausedMatchTimerColor = 77;
    p().frmMain.self().setNumber(Prop::Left, 4321);
    WriteIniFile(p(), "red.set");

    const ModVars red = v;
    p().start();  // a fresh read of the program's own file: other values
    dialogs.boxes.clear();
    ASSERT_NE(v.LastSeconds, 9);
    v.PausedMatchTimerColor = 88;
    p().frmMain.self().setNumber(Prop::Left, 100);
    v.OnTop = 0;

    ReadIniFile(p(), "red.set");
    EXPECT_TRUE(dialogs.boxes.empty());
    for (const SharedVariable& s : sharedVariables()) {
        if (s.stored != Stored::Settings) continue;
        EXPECT_EQ(readVar(v, s).text(), readVar(red, s).text()) << s.name;
    }
    // The set's window keys are never read, and no file knows the paused colour.
    EXPECT_EQ(p().frmMain.self().number(Prop::Left), 100);
    EXPECT_EQ(v.OnTop, 0);
    EXPECT_EQ(v.PausedMatchTimerColor, 88);
    const std::string set = read("red.set");
    EXPECT_NE(set.find("[Form]\r\nPosX=4321\r\n"), std::string::npos);
    EXPECT_EQ(set.find("Paused"), std::string::npos);
    EXPECT_EQ(set.find("[Stats]"), std::string::npos);
}

TEST(ProfileValues, EachKindReadsItsTextOrRefusesIt) {
    const std::optional<double> refused;
    struct Strict { const char* text; std::optional<double> expected; };
    for (const Strict c : {Strict{"-1", -1}, Strict{"0", 0}, Strict{"2.5", -1}, Strict{"True", -1},
                           Strict{"Yes", refused}, Strict{"5s", refused}, Strict{"", refused}}) {
        SCOPED_TRACE(std::string("flag ") + c.text);
        EXPECT_EQ(readFlag(c.text), c.expected);
    }
    for (const Strict c : {Strict{"7.6", 8}, Strict{"6.5", 6}, Strict{"-32768", -32768}, Strict{"1e2", 100},
                           Strict{"32767.5", refused}, Strict{"5s", refused}, Strict{"", refused}}) {
        SCOPED_TRACE(std::string("integer ") + c.text);
        EXPECT_EQ(readInteger(c.text), c.expected);
    }
    // Colours and positions take the leading number and never refuse.
    struct Lenient { const char* text; double expected; };
    for (const Lenient c : {Lenient{"255abc", 255}, Lenient{"  4096", 4096}, Lenient{"", 0}, Lenient{"&HFF", 0},
                            Lenient{"16777215", 16777215}, Lenient{"16777216", 16777215}, Lenient{"-1", 0}}) {
        SCOPED_TRACE(std::string("colour ") + c.text);
        EXPECT_EQ(readColour(c.text), c.expected);
    }
    for (const Lenient c : {Lenient{"1234.5", 1234}, Lenient{"1235.5", 1236}, Lenient{" 12abc", 12},
                            Lenient{"abc", 0}, Lenient{"1e12", 2147483647}, Lenient{"-1e12", -2147483648.0}}) {
        SCOPED_TRACE(std::string("position ") + c.text);
        EXPECT_EQ(readPosition(c.text), c.expected);
    }
}

// The program's own profile file where it cannot be written.
struct ReadOnly : ProgramTest {};

TEST_F(ReadOnly, AReadOnlyProfileFileIsReadAndLeftExactlyAsItWas) {
    const std::string profile =
        "[Form]\r\nPosX=10\r\nPosY=20\r\nOnTop=False\r\n[Options]\r\nListColor=True\r\nLastSeconds=7\r\n"
        "LastFlash=12\r\n[Stats]\r\nLaunched=4\r\nTimedItems=9\r\n";
    write("Brelk.ini", profile);
    ::chmod(path("Brelk.ini").c_str(), 0444);
    p().start();
    EXPECT_EQ(p().vars.LastSeconds, 7);
    EXPECT_EQ(p().vars.Launched, 5);
    p().frmMain.self().setNumber(Prop::Left, 999);
    EXPECT_TRUE(ends([&] { mnuExit_Click(p()); }));
    EXPECT_EQ(read("Brelk.ini"), profile);
}

TEST_F(ReadOnly, AFirstStartThatCannotCreateTheProfileFileRunsOnBuiltInValuesSilently) {
    ::chmod(dir.c_str(), 0555);
    p().start();
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_FALSE(std::filesystem::exists(path("Brelk.ini")));
    EXPECT_EQ(p().vars.Launched, 1);
    EXPECT_EQ(p().vars.LastSeconds, 5);
    EXPECT_EQ(p().vars.MatchDuration, "20:00");
    EXPECT_EQ(p().frmMain.lblMatchTimer().caption(), "20:00");
    EXPECT_EQ(p().vars.MapNameColor, 192);
}

}  // namespace
