// Spoken call-outs over whole matches, heard through a recorder, and the
// profile file's [Coach] section over whole runs of the program.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ScriptedDialogs.h"
#include "callouts/CallOuts.h"
#include "extras/CoachSection.h"
#include "forms/Brelk.h"
#include "map/Layout.h"
#include "platform/Events.h"
#include "platform/TimerScheduler.h"
#include "zoom/Zoom.h"

using namespace brelk;
using namespace brelk::callouts;

namespace {

// Records every call; while `holding`, a call is being said until finish().
struct RecordingVoice : Voice {
    std::vector<std::string> heard;
    std::vector<int> tones;
    bool holding = false;
    std::function<void()> saying;
    void say(const Call& call, std::function<void()> done) override {
        heard.push_back(call.text);
        tones.push_back(call.tones);
        if (holding) saying = std::move(done);
        else done();
    }
    void finish() { std::exchange(saying, nullptr)(); }
};

// One run of the program over `dir`, with call-outs and zoom kept in [Coach] as the program keeps them.
struct Session {
    TimerScheduler clock;
    doubles::ScriptedDialogs dialogs;
    doubles::ScriptedWindows windows;
    Services services;
    Brelk p{services};
    RecordingVoice voice;
    extras::CoachSection section{services.app};
    CallOuts callOuts{p, voice};

    explicit Session(const std::string& dir) : dialogs(clock, dir), services{clock, dialogs, windows, AppInfo{dir, "Brelk"}} {
        declareChoices(section);
        zoom::declareZoom(section);
        callOuts.setChoices(readChoices(section));
        p.setEndListener([this] { section.writeChanged(); });
        p.start();
    }
    MainForm& f() { return p.frmMain; }
    void press(Control& c, int b = button::Left) { p.guarded([&] { f().mouseDown(c, b); }); }
    void release(Control& c, int b = button::Left) { p.guarded([&] { f().mouseUp(c, b); }); }
    void click(Control& c, int b = button::Left) { press(c, b), release(c, b); }
    void wait(int seconds) { p.guarded([&] { clock.advanceBy(seconds * 1000); }); }
    void choose(Sound s) {
        Choices c = callOuts.choices();
        c.sound = s;
        callOuts.setChoices(c);
        storeChoices(section, c);
    }
    void exit() { p.guarded([&] { f().raise(f().at("mnuExit"), Event::Click); }); }
};

struct CallOutsTest : ::testing::Test {
    QTemporaryDir tmp;
    std::string dir = tmp.path().toStdString();
    std::unique_ptr<Session> run = std::make_unique<Session>(dir);
    RecordingVoice& voice = run->voice;
    using Heard = std::vector<std::string>;

    void SetUp() override { run->choose(Sound::Voice); }
    void add(const std::vector<std::string>& lines) {
        for (const auto& l : lines) AddItem(run->p, l);
    }
    QByteArray profile() {
        QFile f(QString::fromStdString(dir + "/Brelk.ini"));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void writeProfile(const QByteArray& bytes) {
        QFile f(QString::fromStdString(dir + "/Brelk.ini"));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
    }
};

TEST_F(CallOutsTest, EachRowIsCalledAtItsLeadTimeAndWhenDueFollowingItsOwnCountdown) {
    add({"TOP ICO_MH:35", "ICO_QUAD:5", "ICO_RA:30", "ICO_YA:20", "-- ??:3"});
    auto& f = run->f();
    run->click(f.lblMatchTimer());
    for (std::int16_t i = 1; i <= 5; ++i) run->click(f.lblItem(i));
    run->wait(2);
    run->click(f.lblItem(4), button::Right);  // the yellow armor is reset before its lead time
    run->wait(6);
    // A delay under the lead time calls only "up"; a name with nothing to say is the row's place.
    EXPECT_EQ(voice.heard, (Heard{"item five up", "quad up"}));
    EXPECT_EQ(voice.tones, (std::vector<int>{2, 2}));

    // A paused match holds every row, a press holds one; a tuned clock changes nothing.
    run->click(f.lblMatchTimer());
    run->wait(30);
    run->click(f.lblMatchTimer());
    f.raise(f.cmdMinPlus(), Event::Click);
    run->press(f.lblItem(3));
    run->wait(16);
    EXPECT_EQ(voice.heard.size(), 2u);
    run->wait(1);
    EXPECT_EQ(voice.heard.back(), "top mega in ten");
    EXPECT_EQ(voice.tones.back(), 1);
    run->wait(10);
    EXPECT_EQ(voice.heard, (Heard{"item five up", "quad up", "top mega in ten", "top mega up"}));

    // A delay equal to the lead time is called at once; switched off, nothing is.
    run->release(f.lblItem(3));
    AddItem(run->p, "ICO_LG:10");
    run->click(f.lblItem(6));
    EXPECT_EQ(voice.heard.back(), "lightning gun in ten");
    run->choose(Sound::Off);
    run->wait(12);
    EXPECT_EQ(voice.heard.size(), 5u);
}

TEST_F(CallOutsTest, CallsDueTogetherWaitTheirTurnAndStaleOnesAreDropped) {
    voice.holding = true;
    add({"ICO_RA:3", "ICO_YA:3", "ICO_MH:3", "ICO_QUAD:3", "ICO_LG:13", "ICO_RL:9"});
    auto& f = run->f();
    run->click(f.lblMatchTimer());
    for (std::int16_t i = 1; i <= 6; ++i) run->click(f.lblItem(i));
    run->wait(3);
    EXPECT_EQ(voice.heard, (Heard{"red armor up"}));
    EXPECT_EQ(run->callOuts.waiting(), 4u);

    // The flashes end by themselves meanwhile; the yellow armor is reset by the coach.
    run->wait(5);
    run->click(f.lblItem(2), button::Right);
    voice.finish();
    voice.finish();
    voice.finish();
    EXPECT_EQ(voice.heard, (Heard{"red armor up", "mega up", "quad up", "lightning gun in five"}));
    // A map loaded while a call waits makes it stale.
    run->wait(5);
    voice.finish();
    EXPECT_EQ(voice.heard.back(), "rocket launcher up");
    EXPECT_EQ(run->callOuts.waiting(), 1u);
    QFile map(QString::fromStdString(dir + "/small.txt"));
    ASSERT_TRUE(map.open(QIODevice::WriteOnly) && map.write("RA:20\r\n") > 0);
    map.close();
    run->dialogs.openAnswers.push_back({"small.txt"});
    f.raise(f.at("mnuLoad"), Event::Click);
    voice.finish();
    EXPECT_EQ(voice.heard.size(), 5u);
    EXPECT_EQ(run->callOuts.waiting(), 0u);
}

TEST_F(CallOutsTest, MatchCallsMarkTheLastMinuteAndTheEndCountingEitherWay) {
    for (const std::int16_t reverse : {0, -1}) {
        SCOPED_TRACE(reverse ? "counting down" : "counting up");
        voice.heard.clear();
        run->p.vars.MatchTimerReverse = reverse;
        run->p.vars.MatchDuration = "01:10";
        run->click(run->f().lblMatchTimer());
        run->wait(9);
        EXPECT_TRUE(voice.heard.empty());
        run->wait(1);
        EXPECT_EQ(voice.heard, (Heard{"one minute"}));
        run->wait(60);
        EXPECT_EQ(voice.heard, (Heard{"one minute", "match over"}));
        EXPECT_EQ(voice.tones.back(), 3);
    }
}

TEST_F(CallOutsTest, TheCoachSectionIsWrittenOnlyOnceChangedAndReadBackAtTheNextStart) {
    // A run of the program as designed, over a profile file of designed keys only...
    const QByteArray designed = "[Form]\r\nPosX=10\r\n[Options]\r\nLastFlash=3\r\nExtra=kept\r\n";
    run.reset();
    writeProfile(designed);
    {
        TimerScheduler clock;
        doubles::ScriptedDialogs dialogs(clock, dir);
        doubles::ScriptedWindows windows;
        Services services{clock, dialogs, windows, AppInfo{dir, "Brelk"}};
        Brelk plain(services);
        plain.start();
        plain.guarded([&] { plain.frmMain.raise(plain.frmMain.at("mnuExit"), Event::Click); });
    }
    const QByteArray asDesigned = profile();
    // ...leaves the same bytes as the same run with call-outs, changed and changed back.
    writeProfile(designed);
    run = std::make_unique<Session>(dir);
    run->choose(Sound::Tone);
    run->choose(Sound::Off);
    zoom::storeZoom(run->section, 200), zoom::storeZoom(run->section, zoom::kBuiltIn);
    run->exit();
    EXPECT_EQ(profile(), asDesigned);

    // A change is kept in [Coach]; a bad value there reads as the built-in one, without a message.
    run = std::make_unique<Session>(dir);
    run->choose(Sound::Tone);
    run->exit();
    EXPECT_TRUE(profile().endsWith("[Coach]\r\nCallOuts=Tone\r\n")) << profile().toStdString();
    writeProfile(profile() + "CallOutLead=12\r\nCallOutUp=false\r\nZoom=175\r\n");
    run = std::make_unique<Session>(dir);
    const Choices read = run->callOuts.choices();
    EXPECT_EQ(read.sound, Sound::Tone);
    EXPECT_EQ(read.lead, Choices{}.lead);
    EXPECT_FALSE(read.upCall);
    EXPECT_EQ(zoom::readZoom(run->section), zoom::kBuiltIn);
    EXPECT_TRUE(run->dialogs.boxes.empty());
}

}  // namespace
