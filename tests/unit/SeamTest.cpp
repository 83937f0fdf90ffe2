// The seam: the match as its events tell it, and commands as clicks.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ScriptedProgram.h"
#include "platform/Numbers.h"
#include "seam/Seam.h"
#include "settings/IniFile.h"

using namespace brelk;
using namespace brelk::seam;
using Lines = std::vector<std::string>;

namespace {

struct SeamTest : ::testing::Test, doubles::StartedProgram {
    MainForm& f = p.frmMain;
    Seam seam{p};
    Lines told;
    Seam::Subscription listening = seam.listen([this](const MatchEvent& e) {
        if (e.what == Happening::LookChanged) return;  // the appearance procedures, told apart below
        std::string line{happeningName(e.what)};
        if (e.row) line += " " + std::to_string(e.row) + " " + num::plainText(e.secondsLeft) + " " + e.nextRespawn;
        if (e.map) line += " " + e.map->name + ":" + std::to_string(e.map->rows.size());
        if (!e.words.empty()) line += " [" + e.words + "]";
        told.push_back(line + " @" + e.clock + " " + std::string(sourceName(e.source)));
    });

    void load(const std::string& bytes) {
        put("Arena.txt", bytes);
        dialogs.openAnswers.push_back({"Arena.txt"});
        f.raise(f.at("mnuLoad"), Event::Click);
    }
    void click(Control& c, int b = button::Left) { f.mouseDown(c, b), f.mouseUp(c, b); }
    Outcome perform(Action a, int row = 0, Source s = Source::Key) { return seam.perform({a, row, ""}, s); }
};

TEST_F(SeamTest, AMatchIsToldInTheOrderItHappensWithWhoDidIt) {
    load(":Armor\r\nICO_RA:3\r\n:Health\r\nTOP ICO_MH:35\r\n");
    p.vars.MatchDuration = "00:08";
    click(f.lblMatchTimer());
    click(f.lblItem(1));
    clock.advanceBy(1000);
    f.mouseDown(f.lblTimer(1), button::Left);  // held half a second
    clock.advanceBy(500);
    f.mouseUp(f.lblTimer(1), button::Left);
    perform(Action::ClockPress);
    perform(Action::StartRow, 2);
    perform(Action::TuneMinuteUp, 0, Source::Action);
    perform(Action::TuneMinuteDown, 0, Source::Action);
    click(f.lblMatchStatus());
    clock.advanceBy(2000);
    perform(Action::ResetRow, 2, Source::Action);
    clock.advanceBy(5500);
    EXPECT_EQ(told, (Lines{
        "map Arena:2 @20:00 click",
        "match start @00:00 click",
        "row start 1 3 00:03 @00:00 click",
        "clock tick @00:01 timer",
        "row tick 1 2 00:03 @00:01 timer",
        "last seconds 1 2 00:03 @00:01 timer",
        "hold 1 2 00:03 @00:01 click",
        "release 1 2 00:03 @00:01 click",
        "pause @00:01 key",
        "refused [Match paused\nStart/unpause the Match Timer first !] @00:01 key",
        "tune @01:01 action",
        "tune @00:01 action",
        "resume @00:01 click",
        "clock tick @00:02 timer",
        "row tick 1 1 00:03 @00:02 timer",
        "clock tick @00:03 timer",
        "row tick 1 0 00:03 @00:03 timer",
        "due 1 0  @00:03 timer",
        "reset 2 0 00:00 @00:03 action",
        "clock tick @00:04 timer",
        "clock tick @00:05 timer",
        "clock tick @00:06 timer",
        "flash end 1 0 00:00 @00:06 timer",
        "clock tick @00:07 timer",
        "clock tick @00:08 timer",
        "end @00:08 timer",
    }));
    // The clock tells how much of the match is left; the map its rows, as their lines said.
    const auto map = seam.map();
    ASSERT_EQ(map->rows.size(), 2u);
    EXPECT_EQ(map->rows[1].category, "Health");
    EXPECT_EQ(map->rows[1].title, "TOP MH");
    EXPECT_EQ(map->rows[1].icon, "MH");
    EXPECT_EQ(map->rows[1].respawnSeconds, 35);
}

TEST_F(SeamTest, CommandsDoWhatTheClickDoesAndGiveTheBoxTheyWouldShowAsTheirRefusal) {
    const auto refusal = [](const Outcome& o) { return o.done ? std::string("done") : o.refusal; };
    EXPECT_EQ(refusal(perform(Action::StartRow, 1)), "There is no row 1: no map is loaded.");
    load("ICO_RA:25\r\nICO_YA:25\r\n");
    EXPECT_EQ(refusal(perform(Action::StartRow, 1)), "Match not started\nStart/unpause the Match Timer first !");
    EXPECT_EQ(refusal(perform(Action::ResetRow, 3)), "There is no row 3: the map has 2 rows.");
    EXPECT_EQ(refusal(perform(Action::ClockPress)), "done");
    EXPECT_EQ(refusal(perform(Action::StartRow, 2)), "done");
    EXPECT_EQ(f.lblTimer(2).caption(), "00:25");
    EXPECT_EQ(refusal(perform(Action::TuneSecondDown)), "done");  // the panel's guard: 00:00 stays
    EXPECT_EQ(refusal(perform(Action::TuneSecondUp)), "done");
    EXPECT_EQ(f.lblMatchTimer().caption(), "00:01");
    EXPECT_EQ(refusal(perform(Action::ResetRow, 2)), "done");
    EXPECT_EQ(f.lblTimer(2).caption(), "00:00");
    EXPECT_EQ(refusal(seam.perform({Action::LoadMap, 0, dir + "/nowhere.txt"}, Source::Action)),
              "An error occured when reading file (wrong file format ?)\nFailed while reading line  0 :\n");
    EXPECT_EQ(refusal(seam.perform({Action::LoadMap, 0, put("Small.txt", "MH:35\r\n")}, Source::Action)), "done");
    EXPECT_EQ(f.lblMapName(1).caption(), "Small");
    // No box was shown for any of them, and the click still shows its own.
    EXPECT_TRUE(dialogs.boxes.empty());
    click(f.lblItem(1));
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "Cannot time items now !");
    // "Exit" ends the program as the menu does, its profile written.
    p.vars.TimedItems = 7;
    EXPECT_EQ(refusal(perform(Action::Exit)), "done");
    EXPECT_TRUE(p.ended());
    EXPECT_EQ(ini::readValue(dir + "/Brelk.ini", "Stats", "TimedItems"), "7");
    EXPECT_EQ(refusal(perform(Action::ClockPress)), "done");  // after the end, nothing happens
}

}  // namespace
