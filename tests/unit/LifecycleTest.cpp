// The main window's stay-on-top switch, its end by the Unload event, and the
// two profile value procedures as the program calls them.

#include <filesystem>
#include <string>

#include "ProgramDoubles.h"
#include "platform/Events.h"
#include "settings/Settings.h"
#include "state/Lifecycle.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

struct Life : ProgramTest {};

TEST_F(Life, OnlyAFlagOfExactlyTrueKeepsTheWindowOnTop) {
    struct Case { int top; bool topmost; };
    for (const Case c : {Case{-1, true}, Case{0, false}, Case{1, false}, Case{2, false}, Case{-2, false}}) {
        SCOPED_TRACE(c.top);
        AlwaysOnTop(p(), c.top);
        ASSERT_FALSE(windows.topmostCalls.empty());
        EXPECT_EQ(windows.topmostCalls.back(), c.topmost);
    }
    // The window system itself is asked for topmost on anything but 0.
    SetWindowTopmost(p(), 5);
    EXPECT_TRUE(windows.topmostCalls.back());
    SetWindowTopmost(p(), 0);
    EXPECT_FALSE(windows.topmostCalls.back());
}

TEST_F(Life, TheStartIsCountedAndTheWindowPlacedBeforeTheSettingsAreRead) {
    write("Brelk.ini",
          "[Form]\r\nPosX=321\r\nPosY=654\r\nOnTop=False\r\n[Stats]\r\nLaunched=7\r\n"
          "[Options]\r\nListColor=maybe\r\n");
    // What stands when the settings read stops at its bad first value.
    std::string fileThen;
    double leftThen = 0;
    std::size_t topmostCallsThen = 0;
    dialogs.onBox = [&](const brelk::testing::ShownBox&) {
        fileThen = read("Brelk.ini");
        leftThen = p().frmMain.self().number(Prop::Left);
        topmostCallsThen = windows.topmostCalls.size();
    };
    p().start();
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_NE(fileThen.find("Launched=8"), std::string::npos) << fileThen;
    EXPECT_EQ(leftThen, 321);
    EXPECT_EQ(topmostCallsThen, 1u);
    // Then the appearance and the empty list.
    EXPECT_EQ(p().frmMain.self().number(Prop::Height), 700);
    EXPECT_EQ(p().vars.MatchState, "not started");
}

TEST_F(Life, UnloadingTheWindowStoresEverythingAndTheTimedItemsThenEnds) {
    write("Brelk.ini",
          "[Stats]\r\nTimedItems=3\r\nLaunched=10\r\n[Form]\r\nPosX=1\r\nPosY=2\r\nOnTop=True\r\n");
    p().start();
    EXPECT_EQ(p().vars.Launched, 11);
    EXPECT_EQ(p().vars.TimedItems, 3);
    p().frmMain.self().setNumber(Prop::Left, 700);
    p().frmMain.self().setNumber(Prop::Top, 800);
    p().vars.OnTop = 0;
    p().vars.LastSeconds = 4;
    p().vars.TimedItems = 9;
    EXPECT_TRUE(ends([&] { p().frmMain.raiseForm(Event::Unload); }));
    EXPECT_TRUE(p().ended());
    const std::string ini = read("Brelk.ini");
    // The counters stay where they stood, in the file's spelling.
    EXPECT_EQ(ini.rfind("[Stats]\r\nTimedItems=9\r\nLaunched=11\r\n[Form]\r\nPosX=700\r\nPosY=800\r\nOnTop=False\r\n", 0),
              0u)
        << ini;
    EXPECT_NE(ini.find("\r\nLastSeconds=4\r\n"), std::string::npos);
    EXPECT_EQ(ini.find("timeditems"), std::string::npos);
}

TEST_F(Life, AWrittenValueIsTrimmedInTheCallersVariableToo) {
    std::string value = "  5 ";
    WriteIniValue(p(), "Options", "LastSeconds", value, " mine.set ");
    EXPECT_EQ(value, "5");
    EXPECT_EQ(read("mine.set"), "[Options]\r\nLastSeconds=5\r\n");
    EXPECT_EQ(ReadIniValue(p(), "options", "lastseconds", "mine.set"), "5");
}

TEST_F(Life, AFileNameOfBlanksOnlyIsTheFolderItself) {
    std::string value = "5";
    WriteIniValue(p(), "Options", "LastSeconds", value, "   ");
    EXPECT_EQ(ReadIniValue(p(), "Options", "LastSeconds", "   "), "");
    EXPECT_TRUE(std::filesystem::is_empty(dir));
}

}  // namespace
