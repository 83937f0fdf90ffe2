// The main window's stay-on-top switch, and what stands when the start's
// settings read reports a bad value.

#include <string>

#include "ProgramDoubles.h"
#include "platform/Errors.h"
#include "platform/Events.h"
#include "forms/Lifecycle.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

struct Life : ProgramTest {};

TEST_F(Life, OnlyAFlagOfExactlyTrueKeepsTheWindowOnTop) {
    struct Case { int top; bool topmost; };
    for (const Case c : {Case{-1, true}, Case{0, false}, Case{1, false}, Case{-2, false}}) {
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
    EXPECT_FALSE(windows.topmostCalls.front());  // OnTop=False from the file
    // Then the appearance and the empty list.
    EXPECT_EQ(p().frmMain.self().number(Prop::Height), 700);
    EXPECT_EQ(p().vars.MatchState, "not started");
}

}  // namespace

namespace {

TEST_F(Life, AnErrorNoProcedureCatchesIsShownAndTheProgramGoesOn) {
    p().start();
    dialogs.boxes.clear();
    int clicks = 0;
    p().frmMain.on("cmdPopup", Event::Click, [&](const EventArgs&) {
        ++clicks;
        brelk::raise(err::Overflow);
    });
    p().frmMain.click(p().frmMain.cmdPopup());
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "Brelk");
    EXPECT_EQ(dialogs.boxes[0].prompt.rfind("Run-time error '6':", 0), 0u);
    EXPECT_FALSE(p().ended());
    // The next event is handled as usual.
    p().frmMain.click(p().frmMain.cmdPopup());
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(dialogs.boxes.size(), 2u);
}

}  // namespace
