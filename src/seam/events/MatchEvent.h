#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brelk::seam {

// What happened in the program, in the order it happened. The designed
// procedures tell these as they run; the features beyond the design hear
// them, and never look into the window's controls.
enum class Happening {
    MapLoaded,      // a load replaced the list (also one stopped by a bad line)
    MatchStarted,
    MatchPaused,
    MatchResumed,
    MatchTuned,     // the tune panel moved the clock's reading
    ClockSet,       // before the start, the options set the clock to a new match length
    MatchEnded,     // the match length is used up
    ClockTicked,    // one second of the match clock
    RowStarted,     // a countdown began
    RowHeld,        // a press (or nothing else) stopped a counting row
    RowReleased,    // a held row goes on
    RowReset,       // a right click made the row idle
    RowTicked,      // one second of a row's countdown
    RowLastSeconds, // the row took its last-seconds look
    RowDue,         // the countdown reached zero: the row flashes
    RowFlashEnded,  // the flash ran out and the row is idle again
    LookChanged,    // colours or options were carried onto the window
    CommandRefused, // a command was refused; `words` holds why
    CallOutSaid,    // a call-out was sounded; `words` holds it
    NotSaved,       // a file could not be written; `words` says which and why
};

// The words a match log or a page uses for a happening: "match start", "row due".
std::string_view happeningName(Happening what);

// What gave rise to it: a mouse click in the window, a key of the coach's,
// a command line action, a timer of the program's own.
enum class Source { Click, Key, Action, Timer };
std::string_view sourceName(Source source);

// One row of a loaded map, as its line said.
struct MapRow {
    std::int16_t index = 0;   // the row's number, from 1
    std::string category;     // the category header above it, "" before the first
    std::string title;        // the name with its icon word: "TOP MH"
    std::string text;         // the name as shown, the icon's place as four blanks
    std::string icon;         // the catalogue word of its icon ("MH"), "" for none
    double respawnSeconds = 0;
};

struct MapOutline {
    std::string name;
    std::vector<MapRow> rows;  // in the map's order; a row a bad line left half-made is not here
};

struct MatchEvent {
    Happening what = Happening::LookChanged;
    std::int64_t atMs = 0;  // the program's own monotonic clock
    Source source = Source::Click;
    // The match clock as it stands after the happening.
    std::string clock;           // as shown: "12:34"
    std::string matchState;      // "not started", "going", "paused"
    double matchSecondsLeft = 0; // until the match length is used up
    // For a row's happenings.
    std::int16_t row = 0;
    double secondsLeft = 0;  // the row's time left
    std::string nextRespawn; // the clock reading it comes back at, "" while due
    // MapLoaded: the map and its rows.
    std::shared_ptr<const MapOutline> map;
    // CommandRefused, CallOutSaid, NotSaved.
    std::string words;
};

// The one stream of match events. Listeners are called in the order they
// subscribed, on the program's one thread; a listener may subscribe or
// unsubscribe others (and itself) while it is called.
class EventHub {
public:
    using Listener = std::function<void(const MatchEvent&)>;

    // A token for unsubscribe().
    int subscribe(Listener listener);
    void unsubscribe(int token);
    // Whether anyone listens: the program builds no event for nobody.
    bool heard() const { return !listeners_.empty(); }
    void publish(const MatchEvent& event) const;

private:
    std::vector<std::pair<int, std::shared_ptr<Listener>>> listeners_;
    int next_ = 0;
};

}  // namespace brelk::seam
