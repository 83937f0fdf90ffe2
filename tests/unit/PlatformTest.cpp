// The control model and its clock, where the scenarios cannot reach.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ErrorOf.h"
#include "platform/Form.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

namespace {

// A form whose events are logged as "name(index).Event:detail@time".
struct Platform : ::testing::Test {
    TimerScheduler clock;
    Form form{"frmTest", clock};
    std::vector<std::string> log;

    void record(const std::string& name, Event e) {
        form.on(name, e, [this, name, e](const EventArgs& a) {
            log.push_back(name + "(" + std::to_string(a.index) + ")." + std::string(eventName(e)) + ":" +
                          std::to_string(a.button) + "@" + std::to_string(clock.now()));
        });
    }
    Control& timer(const std::string& name, int interval) {
        Control& t = form.add(ControlKind::Timer, name);
        t.setNumber(Prop::Interval, interval);
        record(name, Event::Timer);
        return t;
    }
};

TEST_F(Platform, PropertiesReadBackWhatWasWrittenAndEachKindHasOnlyItsOwn) {
    Control& l = form.add(ControlKind::Label, "lbl");
    l.setCaption("  01:44 ");
    EXPECT_EQ(l.caption(), "  01:44 ");
    l.setVisible(true);
    EXPECT_EQ(l.get(Prop::Visible).number(), -1);
    Control& t = form.add(ControlKind::Timer, "tmr");
    EXPECT_THROW(t.get(Prop::Caption), RuntimeError);
    EXPECT_THROW(t.set(Prop::Visible, Value(0)), RuntimeError);
    Control& combo = form.add(ControlKind::ComboBox, "lst");
    combo.AddItem("a");
    combo.AddItem("b");
    combo.setNumber(Prop::ListIndex, 1);
    combo.RemoveItem(0);
    EXPECT_EQ(combo.number(Prop::ListCount), 1);
    EXPECT_EQ(combo.number(Prop::ListIndex), 0);
}

TEST_F(Platform, LoadCopiesMemberZeroHiddenAndUnloadStopsItAndFreesTheIndex) {
    Control& proto = form.addMember(ControlKind::Timer, "tmr", 0);
    proto.setNumber(Prop::Interval, 100);
    proto.setTag("seed");
    record("tmr", Event::Timer);
    Control& one = form.Load("tmr", 1);
    EXPECT_EQ(one.tag(), "seed");  // and its interval, as its tick at 100 ms shows
    Control& label = form.addMember(ControlKind::Label, "lbl", 0);
    label.setVisible(true);
    EXPECT_FALSE(form.Load("lbl", 1).visible());
    EXPECT_THROW(form.Load("tmr", 1), RuntimeError);
    one.setEnabled(true);
    clock.advanceBy(100);
    form.Unload("tmr", 1);
    clock.advanceBy(1000);
    EXPECT_EQ(log, (std::vector<std::string>{"tmr(1).Timer:0@100"}));
    EXPECT_EQ(doubles::errorOf([&] { form.at("tmr", 1); }), err::ControlNotLoaded);
    EXPECT_NO_THROW(form.Load("tmr", 1));
}

TEST_F(Platform, InputFollowsThePlatformsRules) {
    Control& a = form.add(ControlKind::Label, "lblA");
    Control& b = form.add(ControlKind::Label, "lblB");
    for (const char* n : {"lblA", "lblB"}) {
        record(n, Event::MouseDown);
        record(n, Event::MouseUp);
    }
    // A release goes to the control that got the press, until every button is up.
    form.mouseDown(a, button::Left);
    form.mouseDown(a, button::Right);
    form.mouseUp(b, button::Right);
    form.mouseUp(b, button::Left);
    form.mouseUp(b, button::Left);
    EXPECT_EQ(log, (std::vector<std::string>{"lblA(0).MouseDown:1@0", "lblA(0).MouseDown:2@0", "lblA(0).MouseUp:2@0",
                                             "lblA(0).MouseUp:1@0", "lblB(0).MouseUp:1@0"}));
    log.clear();

    // Option buttons of one box clear each other; a Click only when the value changes.
    Control& box = form.add(ControlKind::PictureBox, "picA");
    Control& other = form.add(ControlKind::PictureBox, "picB");
    Control& yes = form.add(ControlKind::OptionButton, "optYes", &box);
    Control& no = form.add(ControlKind::OptionButton, "optNo", &box);
    Control& elsewhere = form.add(ControlKind::OptionButton, "optOther", &other);
    record("optYes", Event::Click);
    elsewhere.setFlag(Prop::Value, true);
    yes.setFlag(Prop::Value, true);
    yes.setFlag(Prop::Value, true);
    form.click(no);
    EXPECT_EQ(std::vector<bool>({yes.flag(Prop::Value), elsewhere.flag(Prop::Value)}), std::vector<bool>({false, true}));
    EXPECT_EQ(log, (std::vector<std::string>{"optYes(0).Click:0@0"}));
}

TEST_F(Platform, AnErrorNoProcedureCaughtIsReportedAndTheFormsOwnUnloadIsHeard) {
    Control& b = form.add(ControlKind::CommandButton, "cmd");
    std::vector<int> reported;
    form.setErrorReporter([&](const RuntimeError& e) { reported.push_back(e.number()); });
    form.on("cmd", Event::Click, [](const EventArgs&) { brelk::raise(err::Overflow); });
    form.click(b);
    EXPECT_EQ(reported, (std::vector<int>{err::Overflow}));

    struct Watch : FormObserver {
        int unloads = 0;
        void formUnloaded() override { ++unloads; }
    } watch;
    form.addObserver(&watch);
    record("frmTest", Event::Unload);
    form.Load();
    form.Unload();
    form.Unload();
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(watch.unloads, 1);
    EXPECT_EQ(log.size(), 1u);
    {  // a form that goes with a timer still running leaves nothing due behind it
        Form gone("frmGone", clock);
        gone.addMember(ControlKind::Timer, "tmr", 0).setNumber(Prop::Interval, 100);
        gone.at("tmr", 0).setEnabled(true);
    }
    EXPECT_FALSE(clock.nextDue());
}

TEST_F(Platform, TimersTickAFullIntervalAfterEnablingInTheOrderTheyWereEnabled) {
    Control& a = timer("a", 1000);
    Control& b = timer("b", 500);
    clock.advanceBy(250);
    a.setEnabled(true);
    b.setEnabled(true);
    clock.advanceBy(999);
    a.setEnabled(true);  // already on: keeps its phase
    clock.advanceBy(1);
    b.setEnabled(false);
    b.setEnabled(true);  // off and on: a fresh interval
    clock.advanceBy(500);
    EXPECT_EQ(log, (std::vector<std::string>{"b(0).Timer:0@750", "a(0).Timer:0@1250", "b(0).Timer:0@1250",
                                             "b(0).Timer:0@1750"}));
}

TEST_F(Platform, TimeBehindAModalBoxFiresOtherTimersButNeverReentersTheWaitingOne) {
    Control& slow = timer("slow", 1000);
    Control& fast = timer("fast", 400);
    bool boxShown = false;
    form.on("slow", Event::Timer, [&](const EventArgs&) {
        log.push_back("slow@" + std::to_string(clock.now()));
        if (boxShown) return;
        boxShown = true;
        clock.advanceBy(1500);  // a box stays open this long
    });
    slow.setEnabled(true);
    fast.setEnabled(true);
    clock.advanceBy(3000);
    EXPECT_EQ(log, (std::vector<std::string>{"fast(0).Timer:0@400", "fast(0).Timer:0@800", "slow@1000",
                                             "fast(0).Timer:0@1200", "fast(0).Timer:0@1600", "fast(0).Timer:0@2000",
                                             "fast(0).Timer:0@2400", "fast(0).Timer:0@2800", "slow@3000"}));
}

}  // namespace
