// Option sets written and read back, the reading of each kind of value, and
// the program's profile file when it cannot be written.

#include <sys/stat.h>

#include <string>
#include <vector>

#include "ProgramDoubles.h"
#include "settings/Settings.h"
#include "state/Lifecycle.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

const std::string kBadFile = "An error occured when reading file (wrong file format ?)";

// Every setting at a value unlike the built-in ones.
void setRed(ModVars& v) {
    v.ListColor = 0;
    v.LastSeconds = 9;
    v.LastFlash = 4;
    v.ActiveTimerBold = 0;
    v.IdleTimerBold = -1;
    v.ActiveItemBold = 0;
    v.IdleItemBold = 0;
    v.CategoryBold = -1;
    v.MapName3D = 0;
    v.MatchTimerReverse = -1;
    v.ShowItemsTimers = 0;
    v.MatchDuration = "12:00";
    v.FormColor = 255;
    v.ListColor1 = 1;
    v.ListColor2 = 2;
    v.IdleTimerColor = 3;
    v.ActiveTimerColor = 4;
    v.IdleItemColor = 5;
    v.ActiveItemColor = 6;
    v.LastSecondsTimerColor = 7;
    v.CategoryColor = 8;
    v.MapNameColor = 9;
    v.MatchTimerColor = 10;
    v.LastMinuteMatchTimerColor = 16777215;
}

struct Sets : ProgramTest {
    void SetUp() override {
        ProgramTest::SetUp();
        p().start();
        dialogs.boxes.clear();
    }
};

TEST_F(Sets, ASetWrittenAndReadBackRestoresEverySetting) {
    auto& v = p().vars;
    setRed(v);
    v.PausedMatchTimerColor = 77;
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
    for (const VarInfo& info : varTable()) {
        if (info.name == "PausedMatchTimerColor" || info.name == "PosX" || info.name == "PosY" ||
            info.name == "OnTop" || info.name == "Launched" || info.name == "TimedItems" ||
            info.name == "MatchState" || info.name == "NextRowTop" || info.name == "ItemCount" ||
            info.name == "CategoryCount")
            continue;
        EXPECT_EQ(readVar(v, info.name).text(), readVar(red, info.name).text()) << info.name;
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

TEST_F(Sets, ABadIdleTimerBoldTakesTheKeysBeforeItAndKeepsTheRest) {
    auto& v = p().vars;
    setRed(v);
    WriteIniFile(p(), "odd.set");
    std::string set = read("odd.set");
    const std::string bad = "IdleTimerBold=True";
    ASSERT_NE(set.find(bad), std::string::npos);
    set.replace(set.find(bad), bad.size(), "IdleTimerBold=Yes");
    write("odd.set", set);

    p().start();
    dialogs.boxes.clear();
    const ModVars before = v;
    ReadIniFile(p(), "odd.set");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kBadFile);
    EXPECT_EQ(dialogs.boxes[0].title, "WTF ?!");
    EXPECT_EQ(dialogs.boxes[0].style & msgbox::IconMask, msgbox::Critical);
    // Taken from the set.
    EXPECT_EQ(v.ListColor, 0);
    EXPECT_EQ(v.LastSeconds, 9);
    EXPECT_EQ(v.LastFlash, 4);
    EXPECT_EQ(v.ActiveTimerBold, 0);
    // Kept.
    EXPECT_EQ(v.IdleTimerBold, before.IdleTimerBold);
    EXPECT_EQ(v.CategoryBold, before.CategoryBold);
    EXPECT_EQ(v.MatchDuration, before.MatchDuration);
    EXPECT_EQ(v.FormColor, before.FormColor);
    EXPECT_EQ(v.LastMinuteMatchTimerColor, before.LastMinuteMatchTimerColor);
}

TEST_F(Sets, WritingASetKeepsItsCommentsAndForeignKeysInPlace) {
    write("mine.set",
          "; my colours\r\n[Options]\r\nLastSeconds=3\r\nMood=calm\r\n[Extra]\r\nA=1\r\n");
    setRed(p().vars);
    p().vars.MatchDuration = "  07:00  ";
    WriteIniFile(p(), " mine.set ");
    const std::string set = read("mine.set");
    EXPECT_EQ(set.rfind("; my colours\r\n[Options]\r\nLastSeconds=9\r\nMood=calm\r\nListColor=False\r\n", 0), 0u)
        << set;
    EXPECT_NE(set.find("[Extra]\r\nA=1\r\n"), std::string::npos);
    EXPECT_NE(set.find("MatchDuration=07:00\r\n"), std::string::npos);
    // The duration is trimmed in the live value too.
    EXPECT_EQ(p().vars.MatchDuration, "07:00");
}

// One value of a set read by its kind: what the setting holds afterwards, or
// that the read stops there with the message.
struct ValueCase {
    const char* key;
    const char* text;  // nullptr: the key is missing
    std::optional<double> expected;
};

const std::vector<ValueCase> kValueCases = {
    {"LastSeconds", "7.6", 8},
    {"LastSeconds", "6.5", 6},
    {"LastSeconds", "-32768", -32768},
    {"LastSeconds", " 12 ", 12},
    {"LastSeconds", "1e2", 100},
    {"LastSeconds", "70000", std::nullopt},
    {"LastSeconds", "32767.5", std::nullopt},
    {"LastSeconds", "", std::nullopt},
    {"LastSeconds", nullptr, std::nullopt},
    {"LastSeconds", "5s", std::nullopt},
    {"ListColor", "1", -1},
    {"ListColor", "-1", -1},
    {"ListColor", "0", 0},
    {"ListColor", "2.5", -1},
    {"ListColor", "True", -1},
    {"ListColor", "False", 0},
    {"ListColor", "\"True\"", -1},
    {"ListColor", "Yes", std::nullopt},
    {"ListColor", "", std::nullopt},
    {"FormColor", "255abc", 255},
    {"FormColor", "abc", 0},
    {"FormColor", "", 0},
    {"FormColor", nullptr, 0},
    {"FormColor", "  4096", 4096},
    {"FormColor", "1e3", 1000},
    {"FormColor", "&HFF", 0},
    {"FormColor", "16777215", 16777215},
    {"FormColor", "16777216", 16777215},
    {"FormColor", "99999999999", 16777215},
    {"FormColor", "-1", 0},
};

TEST_F(Sets, EachKindOfValueReadsOrFailsAsItsKindSays) {
    for (const ValueCase& c : kValueCases) {
        SCOPED_TRACE(std::string(c.key) + "=" + (c.text ? c.text : "(missing)"));
        setRed(p().vars);
        p().vars.ListColor = 1;  // neither -1 nor 0, so a change always shows
        WriteIniFile(p(), "case.set");
        std::string set = read("case.set");
        const std::string line = std::string(c.key) + "=";
        const std::size_t at = set.find("\n" + line) + 1;
        ASSERT_NE(at, 0u);
        const std::size_t end = set.find("\r\n", at) + 2;
        set.replace(at, end - at, c.text ? line + c.text + "\r\n" : "");
        write("case.set", set);

        dialogs.boxes.clear();
        const double before = readVar(p().vars, c.key).number();
        ReadIniFile(p(), "case.set");
        if (c.expected) {
            EXPECT_TRUE(dialogs.boxes.empty());
            EXPECT_EQ(readVar(p().vars, c.key).number(), *c.expected);
        } else {
            EXPECT_EQ(dialogs.boxes.size(), 1u);
            EXPECT_EQ(readVar(p().vars, c.key).number(), before);
        }
    }
}

TEST(Positions, ReadTheLeadingNumberRoundedHalfToEvenWithin32Bits) {
    struct Case { const char* text; double expected; };
    for (const Case c : {Case{"1234.5", 1234}, Case{"1235.5", 1236}, Case{"-300", -300}, Case{" 12abc", 12},
                         Case{"abc", 0}, Case{"", 0}, Case{"-30000.5", -30000}, Case{"1e12", 2147483647},
                         Case{"-1e12", -2147483648.0}}) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(readPosition(c.text), c.expected);
    }
}

// The program's own profile file where it cannot be written.
struct ReadOnly : ProgramTest {};

const std::string kProfile =
    "[Form]\r\nPosX=10\r\nPosY=20\r\nOnTop=False\r\n[Options]\r\nListColor=True\r\nLastSeconds=7\r\n"
    "LastFlash=12\r\n[Stats]\r\nLaunched=4\r\nTimedItems=9\r\n";

TEST_F(ReadOnly, AReadOnlyProfileFileIsReadAndLeftExactlyAsItWas) {
    write("Brelk.ini", kProfile);
    ::chmod(path("Brelk.ini").c_str(), 0444);
    p().start();
    EXPECT_EQ(p().vars.LastSeconds, 7);
    EXPECT_EQ(p().vars.Launched, 5);
    p().frmMain.self().setNumber(Prop::Left, 999);
    EXPECT_TRUE(ends([&] { mnuExit_Click(p()); }));
    EXPECT_EQ(read("Brelk.ini"), kProfile);
}

TEST_F(ReadOnly, AProfileFileInAReadOnlyDirectoryIsLeftExactlyAsItWas) {
    write("Brelk.ini", kProfile);
    ::chmod(dir.c_str(), 0555);
    p().start();
    EXPECT_EQ(p().vars.Launched, 5);
    EXPECT_TRUE(ends([&] { mnuExit_Click(p()); }));
    EXPECT_EQ(read("Brelk.ini"), kProfile);
    ::chmod(dir.c_str(), 0755);
    for (const auto& entry : std::filesystem::directory_iterator(dir))
        EXPECT_EQ(entry.path().filename(), "Brelk.ini");
}

TEST_F(ReadOnly, AFirstStartThatCannotCreateTheProfileFileRunsOnBuiltInValuesSilently) {
    ::chmod(dir.c_str(), 0555);
    p().start();
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_FALSE(std::filesystem::exists(path("Brelk.ini")));
    EXPECT_EQ(p().vars.Launched, 1);
    EXPECT_EQ(p().vars.LastSeconds, 5);
    EXPECT_EQ(p().vars.LastFlash, 12);
    EXPECT_EQ(p().vars.MatchDuration, "20:00");
    EXPECT_EQ(p().frmMain.lblMatchTimer().caption(), "20:00");
    EXPECT_EQ(p().vars.MapNameColor, 192);
}

TEST_F(ReadOnly, TheStayOnTopFlagReachesTheWindowSystem) {
    write("Brelk.ini", kProfile);
    p().start();
    ASSERT_FALSE(windows.topmostCalls.empty());
    EXPECT_FALSE(windows.topmostCalls.back());
    write("Brelk.ini", "[Form]\r\nOnTop=1\r\n");
    p().start();
    EXPECT_TRUE(windows.topmostCalls.back());
}

}  // namespace
