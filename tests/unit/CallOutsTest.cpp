// Call-outs over whole matches, heard by the test, and the [Coach] section.
#include <gtest/gtest.h>

#include <utility>

#include "ScriptedProgram.h"
#include "callouts/CallOuts.h"
#include "seam/CoachSection.h"
#include "seam/Seam.h"
#include "settings/IniFile.h"
#include "zoom/Zoom.h"

using namespace brelk;
using namespace brelk::callouts;
using Heard = std::vector<std::string>;

namespace {

// The program with call-outs kept in [Coach], heard by the test itself: each call with a star per
// tone, and while `holding`, said until finish().
struct CallOutsTest : ::testing::Test, doubles::ScriptedProgram, Voice {
    MainForm& f = p.frmMain;
    seam::CoachSection section{services.app};
    seam::Seam seam{p};
    CallOuts callOuts{seam, *this};
    Heard heard;
    bool holding = false;
    std::function<void()> saying;

    CallOutsTest() { declareChoices(section), p.start(), choose(Sound::Voice); }
    void say(const Call& call, std::function<void()> done) override {
        heard.push_back(call.text + " " + std::string(call.tones, '*'));
        if (holding) saying = std::move(done);
        else done();
    }
    void finish() { std::exchange(saying, nullptr)(); }
    void choose(Sound s) { callOuts.setChoices({s}), storeChoices(section, {s}); }
    void click(Control& c, int b = button::Left) { f.mouseDown(c, b), f.mouseUp(c, b); }
    void wait(int seconds) { clock.advanceBy(seconds * 1000); }
    void startMatchWith(const Heard& lines) {
        std::string map;
        for (const auto& l : lines) map += l + "\r\n";
        put("match.txt", map);
        dialogs.openAnswers.push_back({"match.txt"});
        f.raise(f.at("mnuLoad"), Event::Click);
        click(f.lblMatchTimer());
        for (std::int16_t i = 1; i <= p.vars.ItemCount; ++i) click(f.lblItem(i));
    }
};

TEST_F(CallOutsTest, EachRowIsCalledAtItsLeadTimeAndWhenDueFollowingItsOwnCountdown) {
    startMatchWith({"TOP ICO_MH:35", "ICO_QUAD:5", "ICO_RA:30", "ICO_YA:20", "-- ??:3", "ICO_LG:10"});
    click(f.lblItem(4), button::Right);  // the yellow armor is reset before its lead time
    wait(8);
    // A paused match holds every row, a press holds one; a tuned clock changes nothing.
    click(f.lblMatchTimer());
    wait(30);
    click(f.lblMatchTimer());
    f.raise(f.cmdMinPlus(), Event::Click);
    f.mouseDown(f.lblItem(3), button::Left);
    wait(16);
    EXPECT_EQ(heard.size(), 4u);
    wait(11);
    f.mouseUp(f.lblItem(3), button::Left);
    choose(Sound::Off);  // switched off, nothing is said
    wait(12);
    // A delay equal to the lead time is called at once, a shorter one only "up"; a name with
    // nothing to say is the row's place.
    EXPECT_EQ(heard, (Heard{"lightning gun in ten *", "item five up **", "quad up **", "lightning gun up **",
                            "top mega in ten *", "top mega up **"}));
}

TEST_F(CallOutsTest, CallsDueTogetherWaitTheirTurnAndStaleOnesAreDropped) {
    holding = true;
    startMatchWith({"ICO_RA:3", "ICO_YA:3", "ICO_MH:3", "ICO_QUAD:3", "ICO_LG:13", "ICO_RL:9"});
    wait(8);  // the flashes end by themselves meanwhile; the yellow armor is reset by the coach
    click(f.lblItem(2), button::Right);
    for (int said = 0; said < 3; ++said) finish();
    wait(5);
    finish();
    EXPECT_EQ(heard, (Heard{"red armor up **", "mega up **", "quad up **", "lightning gun in five *",
                                 "rocket launcher up **"}));
    // A map loaded while a call waits makes it stale.
    ASSERT_EQ(callOuts.waiting(), 1u);
    put("small.txt", "RA:20\r\n");
    dialogs.openAnswers.push_back({"small.txt"});
    f.raise(f.at("mnuLoad"), Event::Click);
    finish();
    EXPECT_EQ(heard.size(), 5u);
}

TEST_F(CallOutsTest, MatchCallsMarkTheLastMinuteAndTheEndCountingEitherWay) {
    for (const std::int16_t reverse : {0, -1}) {
        heard.clear();
        p.vars.MatchTimerReverse = reverse;
        p.vars.MatchDuration = "01:10";
        click(f.lblMatchTimer());
        wait(9);
        EXPECT_TRUE(heard.empty()) << reverse;
        wait(61);
        EXPECT_EQ(heard, (Heard{"one minute ***", "match over ***"})) << reverse;
    }
}

TEST_F(CallOutsTest, TheCoachSectionKeepsOnlyWhatChangedAndReadsAWordItDoesNotKnowAsBuiltIn) {
    const std::string profile = dir + "/Brelk.ini";
    // Settings changed and changed back, the zoom's too, leave the file's bytes as they were.
    const auto bytes = [&] { std::string b; return files::readRegularFile(profile, b), b; };
    const std::string asDesigned = bytes();
    zoom::declareZoom(section);
    zoom::storeZoom(section, 200), zoom::storeZoom(section, zoom::kBuiltIn), choose(Sound::Off);
    section.writeChanged();
    EXPECT_EQ(bytes(), asDesigned);
    choose(Sound::Tone);  // from Voice, and every other setting stored as it was read
    section.writeChanged();
    EXPECT_EQ(ini::readValue(profile, "Coach", "CallOutUp"), "");
    ini::writeValue(profile, "Coach", "CallOutLead", "12");
    ini::writeValue(profile, "Coach", "CallOutUp", "false");
    ini::writeValue(profile, "Coach", "Zoom", "175");
    seam::CoachSection next(services.app);
    declareChoices(next), zoom::declareZoom(next);
    EXPECT_EQ(readChoices(next), (Choices{Sound::Tone, Choices{}.lead, false}));
    EXPECT_EQ(zoom::readZoom(next), zoom::kBuiltIn);
}

}  // namespace
