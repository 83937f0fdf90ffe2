#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>

#include "callouts/Choices.h"
#include "callouts/Voice.h"
#include "seam/Seam.h"

namespace brelk::callouts {

// Spoken call-outs over a running program, from its match events alone: a
// row's time left reaching the lead time calls "<item> in <lead>", the row
// becoming due calls "<item> up", the clock entering its last minute while
// it runs and the end of the match call "one minute" and "match over".
// Calls that fall due together wait their turn and are said one after the
// other; a call before an item said late tells the time then left. A call
// whose row has been reset or started anew, or whose map has been replaced,
// is dropped before its turn, as is a call before an item already due.
class CallOuts {
public:
    CallOuts(seam::Seam& seam, Voice& voice);

    const Choices& choices() const { return choices_; }
    // Turning the sound off drops the calls that wait.
    void setChoices(const Choices& c);

    // Calls waiting their turn, the one being said not counted.
    std::size_t waiting() const { return waiting_.size(); }

private:
    // What the call-outs know of one row.
    struct Row {
        std::string name;        // as it is said
        double left = 0;         // its time left
        bool due = false;        // its flash runs
        unsigned countdown = 0;  // changes each time the coach resets or restarts it
    };
    struct Waiting {
        Call call;
        std::int16_t row = 0;  // 0: a match call
        bool beforeDue = false;
        unsigned countdown = 0;
        unsigned map = 0;
    };

    void heard(const seam::MatchEvent& e);
    void newMap(const seam::MapOutline* map);
    void rowEvent(const seam::MatchEvent& e);
    void clockEvent(const seam::MatchEvent& e);

    void callRow(std::int16_t i, const std::string& words, int tones, bool beforeDue);
    void callMatch(const std::string& words);
    bool stale(const Waiting& w) const;
    void next();

    seam::Seam& seam_;
    Voice& voice_;
    Choices choices_;
    std::map<std::int16_t, Row> rows_;
    std::deque<Waiting> waiting_;
    unsigned map_ = 0;      // changes when a map is loaded
    double clockLeft_ = 0;  // seconds left in the match at the clock's last reading
    bool speaking_ = false;
    unsigned turn_ = 0;     // the call being said, so that a late "done" of an old one is ignored
    seam::Seam::Subscription listening_;
};

}  // namespace brelk::callouts
