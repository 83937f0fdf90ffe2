#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Errors.h"
#include "platform/Form.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

namespace {

// A form with a few timers whose ticks are logged as "name@time".
struct Clocked : ::testing::Test {
    TimerScheduler clock;
    Form form{"frmTest", clock};
    std::vector<std::string> log;

    Control& timer(const std::string& name, int interval) {
        Control& t = form.add(ControlKind::Timer, name);
        t.setNumber(Prop::Interval, interval);
        form.on(name, Event::Timer, [this, name](const EventArgs&) {
            log.push_back(name + "@" + std::to_string(clock.now()));
        });
        return t;
    }
};

TEST_F(Clocked, FirstTickComesOneFullIntervalAfterEnabling) {
    Control& t = timer("t", 1000);
    clock.advanceBy(250);
    t.setEnabled(true);
    clock.advanceBy(999);
    EXPECT_TRUE(log.empty());
    clock.advanceBy(1);
    clock.advanceBy(2000);
    EXPECT_EQ(log, (std::vector<std::string>{"t@1250", "t@2250", "t@3250"}));
}

TEST_F(Clocked, ReenablingStartsAFreshIntervalButEnablingAnEnabledTimerKeepsItsPhase) {
    Control& t = timer("t", 1000);
    t.setEnabled(true);
    clock.advanceBy(600);
    t.setEnabled(true);
    clock.advanceBy(900);
    t.setEnabled(false);
    clock.advanceBy(1000);
    t.setEnabled(true);
    clock.advanceBy(1000);
    EXPECT_EQ(log, (std::vector<std::string>{"t@1000", "t@3500"}));
}

TEST_F(Clocked, TicksDueTogetherFireInTheOrderTheirTimersWereEnabled) {
    Control& b = timer("b", 500);
    Control& a = timer("a", 1000);
    a.setEnabled(true);
    b.setEnabled(true);
    clock.advanceBy(1000);
    EXPECT_EQ(log, (std::vector<std::string>{"b@500", "a@1000", "b@1000"}));
}

TEST_F(Clocked, ATimerThatIsUnloadedStopsTicking) {
    form.addMember(ControlKind::Timer, "arr", 0).setNumber(Prop::Interval, 100);
    form.on("arr", Event::Timer, [this](const EventArgs& a) { log.push_back("arr" + std::to_string(a.index)); });
    form.Load("arr", 1).setEnabled(true);
    clock.advanceBy(100);
    form.Unload("arr", 1);
    clock.advanceBy(1000);
    EXPECT_EQ(log, (std::vector<std::string>{"arr1"}));
    EXPECT_FALSE(clock.nextDue().has_value());
}

TEST_F(Clocked, TimePassingBehindAModalBoxFiresOtherTimersButNeverReentersTheWaitingOne) {
    Control& slow = timer("slow", 1000);
    Control& fast = timer("fast", 300);
    // The slow timer's handler waits 2500 ms behind a "box", as a modal dialog would.
    bool boxShown = false;
    form.on("slow", Event::Timer, [&](const EventArgs&) {
        log.push_back("slow@" + std::to_string(clock.now()));
        if (boxShown) return;
        boxShown = true;
        clock.advanceBy(2500);
        log.push_back("box closed@" + std::to_string(clock.now()));
    });
    slow.setEnabled(true);
    fast.setEnabled(true);
    clock.advanceBy(1000);
    EXPECT_EQ(log, (std::vector<std::string>{"fast@300", "fast@600", "fast@900", "slow@1000", "fast@1200",
                                             "fast@1500", "fast@1800", "fast@2100", "fast@2400", "fast@2700",
                                             "fast@3000", "fast@3300", "box closed@3500"}));
    log.clear();
    clock.advanceBy(500);
    // Ticks of the slow timer due while its handler waited were lost; it goes on in phase.
    EXPECT_EQ(log, (std::vector<std::string>{"fast@3600", "fast@3900", "slow@4000"}));
}

TEST_F(Clocked, AHandlerThatRestartsItsOwnTimerGetsAFreshInterval) {
    Control& t = timer("t", 1000);
    form.on("t", Event::Timer, [&](const EventArgs&) {
        log.push_back("t@" + std::to_string(clock.now()));
        t.setEnabled(false);
        t.setEnabled(true);
    });
    t.setEnabled(true);
    clock.advanceBy(3000);
    EXPECT_EQ(log, (std::vector<std::string>{"t@1000", "t@2000", "t@3000"}));
}

TEST_F(Clocked, ATimerWithoutAPositiveIntervalNeverTicksAndTheListenerHearsStartsAndStops) {
    Control& idle = timer("idle", 0);
    idle.setEnabled(true);
    clock.advanceBy(10000);
    EXPECT_TRUE(log.empty());
    EXPECT_TRUE(idle.enabled());
    int changes = 0;
    clock.setChangeListener([&] { ++changes; });
    Control& t = timer("t", 100);
    t.setEnabled(true);
    t.setEnabled(false);
    EXPECT_EQ(changes, 2);
}

TEST_F(Clocked, TheEndOfTheProgramInsideATickLeavesTheSchedulerUsable) {
    Control& t = timer("t", 100);
    form.on("t", Event::Timer, [](const EventArgs&) { throw ProgramEnded{}; });
    t.setEnabled(true);
    EXPECT_THROW(clock.advanceBy(100), ProgramEnded);
    t.setEnabled(false);
    EXPECT_FALSE(clock.nextDue().has_value());
}

}  // namespace
