#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "seam/events/MatchEvent.h"

namespace brelk {
class Program;
struct AppInfo;
}  // namespace brelk

namespace brelk::seam {

// What a command asks for: what a click asks for, by the same handlers.
enum class Action {
    ClockPress,      // a left press on the match clock: start, pause, resume
    StartRow,        // a left click on row `row`'s time
    ResetRow,        // a right click on it
    TuneSecondUp,    // the tune panel's buttons, by the panel's rules
    TuneSecondDown,
    TuneMinuteUp,
    TuneMinuteDown,
    LoadMap,         // the map `file`, as the open dialog would give it
    Exit,            // the menu's "Exit"
};

struct Command {
    Action action = Action::ClockPress;
    int row = 0;
    std::string file;
};

// What a command came to: done, or refused with the text that the designed
// message box would have shown ("Match not started\nStart/unpause the Match
// Timer first !"), lines parted by "\n".
struct Outcome {
    bool done = true;
    std::string refusal;
};

// A row as it stands now, and how the window draws it. Colours are 0x00BBGGRR.
enum class RowPhase { Idle, Counting, Held, Flashing };

struct RowNow {
    MapRow row;
    RowPhase phase = RowPhase::Idle;
    std::string time;          // the time left as shown
    std::string nextRespawn;   // as shown, "" while due
    bool nextRespawnShown = false;
    bool lastSeconds = false;  // in its last-seconds look
    std::int32_t timeColour = 0, nameColour = 0, nextRespawnColour = 0;
    bool timeBold = false, nameBold = false;
    std::optional<std::int32_t> background;  // none: the window's own shows through
};

// The match clock as it stands now.
struct ClockNow {
    std::string text;         // as shown
    std::string status;       // its status line: "Not Started", "", "Paused", "Match Ended"
    std::string matchState;   // "not started", "going", "paused"
    double matchSecondsLeft = 0;
    std::int32_t colour = 0, statusColour = 0;
    bool bold = true;
};

// The board as it stands now: what a viewer shows before the next event.
struct Snapshot {
    std::string map;  // the map's name as shown ("( load a map )" before the first)
    ClockNow clock;
    std::vector<RowNow> rows;
};

// The rest of the profile's look. Colours are 0x00BBGGRR.
struct Look {
    std::int32_t form = 0, category = 0, mapName = 0;
    bool categoryBold = false, mapName3D = false, showItemsTimers = false;
};

// Runs one piece of input through the program, as the window's input runs
// (with the clock brought up to the present first); false once it has ended.
using InputGuard = std::function<bool(const std::function<void()>&)>;

// The one way in and out of the designed program for what goes beyond it:
// its match events out, commands in through the handlers a click reaches.
class Seam {
public:
    // `guard`: how input reaches the program; by default the program's own.
    explicit Seam(Program& p, InputGuard guard = {});
    ~Seam();
    Seam(const Seam&) = delete;
    Seam& operator=(const Seam&) = delete;

    // Hears every match event from now on, until the subscription goes.
    class Subscription {
    public:
        Subscription() = default;
        Subscription(Subscription&& other) noexcept;
        Subscription& operator=(Subscription&& other) noexcept;
        ~Subscription();

    private:
        friend class Seam;
        Subscription(EventHub* hub, int token) : hub_(hub), token_(token) {}
        EventHub* hub_ = nullptr;
        int token_ = 0;
    };
    [[nodiscard]] Subscription listen(EventHub::Listener listener);

    // Does what the click would, through the same handler and rules. A box
    // the click would show is not shown: its text comes back as the
    // refusal, and a CommandRefused event tells it. A command after the
    // program's end does nothing.
    Outcome perform(const Command& command, Source source);

    // Tells every listener something a feature did (CallOutSaid).
    void announce(Happening what, std::string words);

    Snapshot snapshot() const;
    ClockNow clock() const;
    // Row `row` of the map as the last load left it; none for a row it does not have.
    std::optional<RowNow> row(int row) const;
    Look look() const;
    // The map as the last load left it; null before the first.
    std::shared_ptr<const MapOutline> map() const;
    // Where the program keeps its files.
    const AppInfo& app() const;

private:
    Outcome carryOut(const Command& command);

    Program& p_;
    InputGuard guard_;
};

}  // namespace brelk::seam
