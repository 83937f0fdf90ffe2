#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Errors.h"
#include "platform/Form.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

namespace {

struct Model : ::testing::Test {
    TimerScheduler clock;
    Form form{"frmTest", clock};
    std::vector<std::string> log;

    void record(const std::string& name, Event e) {
        form.on(name, e, [this, name, e](const EventArgs& a) {
            log.push_back(name + "(" + std::to_string(a.index) + ")." + std::string(eventName(e)) + ":" +
                          std::to_string(a.button));
        });
    }
};

TEST_F(Model, PropertiesKeepTheirTextAndReadFlagsAsMinusOne) {
    Control& l = form.add(ControlKind::Label, "lbl");
    l.setCaption("  01:44 ");
    EXPECT_EQ(l.caption(), "  01:44 ");
    l.setVisible(true);
    EXPECT_EQ(l.get(Prop::Visible).number(), -1);
    l.setTag("3");
    EXPECT_EQ(l.get(Prop::Tag).number(), 3);
}

TEST_F(Model, AKindOnlyCarriesItsOwnProperties) {
    Control& t = form.add(ControlKind::Timer, "tmr");
    EXPECT_THROW(t.get(Prop::Caption), RuntimeError);
    EXPECT_THROW(t.set(Prop::Visible, Value(0)), RuntimeError);
    Control& line = form.add(ControlKind::Line, "ln");
    EXPECT_NO_THROW(line.setNumber(Prop::X2, 1800));
    EXPECT_THROW(line.setCaption("x"), RuntimeError);
}

TEST_F(Model, LoadCopiesMemberZeroHiddenAndUnloadFreesTheIndex) {
    Control& proto = form.addMember(ControlKind::Label, "lblItem", 0);
    proto.setCaption("Upper");
    proto.setNumber(Prop::FontSize, 8.25);
    proto.setFlag(Prop::FontBold, true);
    proto.setTag("seed");
    Control& one = form.Load("lblItem", 1);
    EXPECT_EQ(one.caption(), "Upper");
    EXPECT_EQ(one.number(Prop::FontSize), 8.25);
    EXPECT_TRUE(one.flag(Prop::FontBold));
    EXPECT_EQ(one.tag(), "seed");
    EXPECT_FALSE(one.visible());

    EXPECT_THROW(form.Load("lblItem", 1), RuntimeError);
    form.Unload("lblItem", 1);
    EXPECT_EQ(form.find("lblItem", 1), nullptr);
    try {
        form.at("lblItem", 1);
        ADD_FAILURE() << "an unloaded member must not be reachable";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), err::ControlNotLoaded);
    }
    EXPECT_NO_THROW(form.Load("lblItem", 1));
}

TEST_F(Model, AnErrorNoProcedureCaughtIsReportedAndTheProgramGoesOn) {
    Control& b = form.add(ControlKind::CommandButton, "cmd");
    std::vector<int> reported;
    form.setErrorReporter([&](const RuntimeError& e) { reported.push_back(e.number()); });
    form.on("cmd", Event::Click, [](const EventArgs&) { brelk::raise(err::Overflow); });
    form.click(b);
    form.click(b);
    EXPECT_EQ(reported, (std::vector<int>{err::Overflow, err::Overflow}));
}

// Within one box option buttons exclude each other (the entry-field window
// test clicks them); another box is left alone.
TEST_F(Model, OptionButtonsOfAnotherContainerAreLeftAlone) {
    Control& boxA = form.add(ControlKind::PictureBox, "picA");
    Control& boxB = form.add(ControlKind::PictureBox, "picB");
    Control& yesA = form.add(ControlKind::OptionButton, "optYesA", &boxA);
    Control& noA = form.add(ControlKind::OptionButton, "optNoA", &boxA);
    Control& yesB = form.add(ControlKind::OptionButton, "optYesB", &boxB);
    yesB.setFlag(Prop::Value, true);
    yesA.setFlag(Prop::Value, true);
    form.click(noA);
    EXPECT_FALSE(yesA.flag(Prop::Value));
    EXPECT_TRUE(yesB.flag(Prop::Value));
}

TEST_F(Model, FocusMovesWithLostFocusBeforeGotFocus) {
    Control& a = form.add(ControlKind::TextBox, "txtA");
    Control& b = form.add(ControlKind::TextBox, "txtB");
    record("txtA", Event::LostFocus);
    record("txtB", Event::GotFocus);
    form.setFocus(&a);
    form.setFocus(&b);
    EXPECT_EQ(form.focus(), &b);
    EXPECT_EQ(log, (std::vector<std::string>{"txtA(0).LostFocus:0", "txtB(0).GotFocus:0"}));
}

}  // namespace
