// The match length and the clock reading as the clock takes them, for texts
// that the scenario files cannot reach one by one, and the repaint of the
// clock over a reading that is no time text.

#include <string>
#include <vector>

#include "ProgramDoubles.h"
#include "clock/MatchClock.h"
#include "settings/Appearance.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

struct LengthCase {
    const char* typed;
    const char* used;
};

TEST(MatchLength, ATimeTextStaysAsTypedAndAnythingElseIsBroughtIntoRange) {
    const std::vector<LengthCase> cases = {
        // Time texts of whole seconds within range are used as they stand.
        {"20:00", "20:00"}, {"0:00", "0:00"}, {"5:7", "5:7"}, {" 12:00 ", " 12:00 "}, {"546:07", "546:07"},
        {"abc:00", "abc:00"},  // no minutes read as 0: a match of no length
        {"1.5:00", "1.5:00"},  // 90 whole seconds
        // Beyond the largest reading, below zero, fractions of a second.
        {"546:08", "546:07"}, {"999:00", "546:07"}, {"-05:00", "00:00"}, {"-0:01", "00:00"},
        {"20:30.5", "20:30"}, {"20:31.5", "20:32"},
        // No time text at all.
        {"", "20:00"}, {"20", "20:00"}, {"15:xx", "20:00"}, {"1:30:00", "20:00"}, {":", "20:00"},
    };
    for (const LengthCase& c : cases) {
        SCOPED_TRACE(c.typed);
        ModVars v;
        v.MatchDuration = c.typed;
        EXPECT_EQ(matchDurationText(v), c.used);
    }
}

TEST(MatchLength, SecondsFollowTheTextTheClockUses) {
    ModVars v;
    v.MatchDuration = "1:30:00";
    EXPECT_EQ(matchDurationSeconds(v), 1200);
    v.MatchDuration = "600:00";
    EXPECT_EQ(matchDurationSeconds(v), 32767);
    v.MatchDuration = "-1:00";
    EXPECT_EQ(matchDurationSeconds(v), 0);
}

struct Reading : ProgramTest {
    void SetUp() override {
        ProgramTest::SetUp();
        p().start();
        p().vars.MatchDuration = "15:00";
    }
    void show(const std::string& caption) { p().frmMain.lblMatchTimer().setCaption(caption); }
};

TEST_F(Reading, AReadingThatIsNoTimeTextIsTheStartOfAMatch) {
    for (const char* caption : {"junk", "", "12:3x", "1:2:3"}) {
        SCOPED_TRACE(caption);
        show(caption);
        p().vars.MatchTimerReverse = -1;
        EXPECT_EQ(clockReading(p()), 900);
        p().vars.MatchTimerReverse = 0;
        EXPECT_EQ(clockReading(p()), 0);
    }
    show("02:30.5");
    EXPECT_EQ(clockReading(p()), 150);
    show("100:05");
    EXPECT_EQ(clockReading(p()), 6005);
}

TEST_F(Reading, WrittenReadingsStayWithinWhatTheClockHolds) {
    showReading(p(), 32767);
    EXPECT_EQ(p().frmMain.lblMatchTimer().caption(), "546:07");
    showReading(p(), 40000);
    EXPECT_EQ(p().frmMain.lblMatchTimer().caption(), "546:07");
    showReading(p(), 59);
    EXPECT_EQ(p().frmMain.lblMatchTimer().caption(), "00:59");
}

TEST_F(Reading, TheRepaintOfARunningClockCopesWithAnUnreadableReading) {
    auto& v = p().vars;
    v.MatchTimerColor = 100;
    v.LastMinuteMatchTimerColor = 200;
    v.MatchState = "going";
    show("junk");
    // Counting up it reads 00:00, far from the end; counting down of a
    // 15-minute match it reads 15:00, far from the end as well.
    v.MatchTimerReverse = 0;
    ChangeGlobalTimerColor(p());
    EXPECT_EQ(p().frmMain.lblMatchTimer().number(Prop::ForeColor), 100);
    v.MatchTimerReverse = -1;
    ChangeGlobalTimerColor(p());
    EXPECT_EQ(p().frmMain.lblMatchTimer().number(Prop::ForeColor), 100);
    // A match of one minute counting down starts in its last minute.
    v.MatchDuration = "01:00";
    ChangeGlobalTimerColor(p());
    EXPECT_EQ(p().frmMain.lblMatchTimer().number(Prop::ForeColor), 200);
    EXPECT_EQ(p().frmMain.lblMatchTimer().caption(), "junk");
    EXPECT_TRUE(dialogs.boxes.empty());
}

}  // namespace
