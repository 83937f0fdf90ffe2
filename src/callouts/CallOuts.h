#pragma once

#include <cstdint>
#include <deque>
#include <map>

#include "callouts/Choices.h"
#include "callouts/Voice.h"
#include "platform/Form.h"

namespace brelk {
class Program;
}

namespace brelk::callouts {

// Spoken call-outs over a running program. They watch the main window as a
// view does and change nothing in it: a row's time text reaching the lead
// time calls "<item> in <lead>", its flash starting calls "<item> up", the
// clock's last minute and the end of the match call "one minute" and "match
// over". Calls that fall due together wait their turn and are said one after
// the other; a call before an item said late tells the time then left. A
// call whose row has been reset or started anew, or whose map has been
// reloaded, is dropped before its turn, as is a call before an item that is
// already due.
class CallOuts : private FormObserver {
public:
    CallOuts(Program& p, Voice& voice);
    ~CallOuts() override;
    CallOuts(const CallOuts&) = delete;
    CallOuts& operator=(const CallOuts&) = delete;

    const Choices& choices() const { return choices_; }
    // Turning the sound off drops the calls that wait.
    void setChoices(const Choices& c);

    // Calls waiting their turn, the one being said not counted.
    std::size_t waiting() const { return waiting_.size(); }

private:
    // What the call-outs know of one row, from what it shows.
    struct Row {
        double left = 0;          // the time text's seconds
        bool due = false;         // its flash runs
        bool flashDone = false;   // its flash ended by itself: the reset that follows is no reset by the coach
        unsigned countdown = 0;   // changes each time the row is put back to idle
    };
    struct Waiting {
        Call call;
        std::int16_t row = 0;  // 0: a match call
        bool beforeDue = false;
        unsigned countdown = 0;
        unsigned map = 0;
    };

    void propertyChanged(Control& c, Prop p) override;
    void controlUnloading(Control& c) override;

    void rowTime(std::int16_t i, Control& label);
    void rowFlash(std::int16_t i, Control& flash);
    void rowFlashCount(std::int16_t i, Control& flash);
    void clockTime();
    double clockLeft();

    void callRow(std::int16_t i, const std::string& words, int tones, bool beforeDue);
    void callMatch(const std::string& words);
    bool stale(const Waiting& w) const;
    void next();

    Program& p_;
    Voice& voice_;
    Choices choices_;
    std::map<std::int16_t, Row> rows_;
    std::deque<Waiting> waiting_;
    unsigned map_ = 0;         // changes when a map is loaded
    double clockLeft_ = 0;     // seconds left in the match at the clock's last reading
    bool speaking_ = false;
    unsigned turn_ = 0;        // the call being said, so that a late "done" of an old one is ignored
};

}  // namespace brelk::callouts
