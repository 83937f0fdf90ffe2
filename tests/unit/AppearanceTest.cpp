// The appearance procedures on rows and clock states that only the options
// window can reach from outside: their look at start and load is played by
// the scenario files.

#include <string>

#include "ProgramDoubles.h"
#include "map/Layout.h"
#include "platform/Errors.h"
#include "clock/MatchClock.h"
#include "map/ListLook.h"
#include "timers/RowLook.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

struct Look : ProgramTest {
    void SetUp() override {
        ProgramTest::SetUp();
        p().start();
        auto& v = p().vars;
        v.IdleTimerColor = 11, v.ActiveTimerColor = 22, v.IdleItemColor = 33, v.ActiveItemColor = 44;
        v.IdleTimerBold = 0, v.ActiveTimerBold = -1, v.IdleItemBold = 0, v.ActiveItemBold = -1;
        v.MatchTimerColor = 100, v.LastMinuteMatchTimerColor = 200, v.PausedMatchTimerColor = 300;
        v.ListColor1 = 1001, v.ListColor2 = 1002;
        for (const char* line : {"Mega:35", "Quad:120", "Red:25"}) AddItem(p(), line);
    }
    Control& timer(int i) { return p().frmMain.lblTimer(static_cast<std::int16_t>(i)); }
    Control& item(int i) { return p().frmMain.lblItem(static_cast<std::int16_t>(i)); }
    Control& global(int i) { return p().frmMain.lblTimerGlobal(static_cast<std::int16_t>(i)); }
};

TEST_F(Look, HeldRowsTakeTheActiveLookAndFlashingRowsTheIdleOne) {
    auto& f = p().frmMain;
    // Row 1 held by a pause, row 2 flashing at "00:00", row 3 idle.
    timer(1).setCaption("00:42");
    f.timerItem(1).setEnabled(false);
    f.timerFlash(2).setEnabled(true);
    ChangeTimerColor(p());
    EXPECT_EQ(timer(1).number(Prop::ForeColor), 22);
    EXPECT_TRUE(timer(1).flag(Prop::FontBold));
    EXPECT_EQ(item(1).number(Prop::ForeColor), 44);
    EXPECT_TRUE(item(1).flag(Prop::FontBold));
    EXPECT_EQ(global(1).number(Prop::ForeColor), 22);
    for (int i : {2, 3}) {
        SCOPED_TRACE(i);
        EXPECT_EQ(timer(i).number(Prop::ForeColor), 11);
        EXPECT_FALSE(timer(i).flag(Prop::FontBold));
        EXPECT_EQ(item(i).number(Prop::ForeColor), 33);
        EXPECT_EQ(global(i).number(Prop::ForeColor), 11);
    }
}

TEST_F(Look, TheNextRespawnColumnFollowsTheSettingOnActiveRowsOnly) {
    p().vars.ShowItemsTimers = 0;
    timer(1).setCaption("00:42");
    global(1).setVisible(true);
    global(2).setVisible(true);
    ChangeTimerColor(p());
    EXPECT_FALSE(global(1).visible());
    EXPECT_TRUE(global(2).visible());
    p().vars.ShowItemsTimers = -1;
    global(2).setVisible(false);
    ChangeTimerColor(p());
    EXPECT_TRUE(global(1).visible());
    EXPECT_FALSE(global(2).visible());
}

TEST_F(Look, ANewStripColourRecoloursTheOddRowsAndKeepsThemTransparent) {
    auto& f = p().frmMain;
    ItemBackground(p(), false);
    p().vars.ListColor2 = 5005;
    ChangeListColor(p());
    EXPECT_EQ(f.lblFond(3).number(Prop::BackColor), 5005);
    EXPECT_EQ(f.lblFond(2).number(Prop::BackColor), 1001);
    EXPECT_EQ(f.lblFond(3).number(Prop::BackStyle), 0);
}

TEST_F(Look, AHalfMadeRowKeepsShowingOnlyItsBackground) {
    // A map line whose seconds are no number leaves row 4 half-made, with the
    // prototype's "01:44" in its hidden timer.
    EXPECT_THROW(AddItem(p(), "Mega:soon"), RuntimeError);
    ASSERT_EQ(p().vars.ItemCount, 4);
    p().vars.ShowItemsTimers = -1;
    ChangeTimerColor(p());
    EXPECT_TRUE(p().frmMain.lblFond(4).visible());
    EXPECT_FALSE(global(4).visible());
    EXPECT_FALSE(timer(4).visible());
    EXPECT_FALSE(item(4).visible());
    // The complete rows around it take their look as usual.
    EXPECT_EQ(timer(3).number(Prop::ForeColor), 11);
}

TEST_F(Look, TheClockTakesTheColourOfItsStateAndLastMinute) {
    struct ClockCase { const char* state; bool reverse; const char* caption; int expected; };
    const ClockCase cases[] = {
        {"going", false, "19:00", 100}, {"going", false, "19:01", 200}, {"going", true, "01:01", 100},
        {"going", true, "01:00", 200},  {"paused", false, "19:30", 300}, {"not started", false, "19:30", 100},
    };
    auto& f = p().frmMain;
    p().vars.MatchDuration = "20:00";
    for (const ClockCase& c : cases) {
        SCOPED_TRACE(std::string(c.state) + " " + c.caption);
        p().vars.MatchState = c.state;
        p().vars.MatchTimerReverse = c.reverse ? -1 : 0;
        f.lblMatchTimer().setCaption(c.caption);
        f.lblMatchTimer().setNumber(Prop::ForeColor, 1);
        f.lblMatchStatus().setCaption("Match Ended");
        ChangeGlobalTimerColor(p());
        EXPECT_EQ(f.lblMatchTimer().number(Prop::ForeColor), c.expected);
        EXPECT_EQ(f.lblMatchStatus().number(Prop::ForeColor), c.expected);
        EXPECT_EQ(f.lblMatchStatus().caption(), "Match Ended");
    }
}

}  // namespace
