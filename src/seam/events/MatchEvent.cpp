#include "seam/events/MatchEvent.h"

#include <algorithm>

namespace brelk::seam {

std::string_view happeningName(Happening what) {
    switch (what) {
    case Happening::MapLoaded: return "map";
    case Happening::MatchStarted: return "match start";
    case Happening::MatchPaused: return "pause";
    case Happening::MatchResumed: return "resume";
    case Happening::MatchTuned: return "tune";
    case Happening::MatchEnded: return "end";
    case Happening::ClockSet: return "clock set";
    case Happening::ClockTicked: return "clock tick";
    case Happening::RowStarted: return "row start";
    case Happening::RowHeld: return "hold";
    case Happening::RowReleased: return "release";
    case Happening::RowReset: return "reset";
    case Happening::RowTicked: return "row tick";
    case Happening::RowLastSeconds: return "last seconds";
    case Happening::RowDue: return "due";
    case Happening::RowFlashEnded: return "flash end";
    case Happening::LookChanged: return "look";
    case Happening::CommandRefused: return "refused";
    case Happening::CallOutSaid: return "call-out said";
    case Happening::NotSaved: return "not saved";
    }
    return "";
}

std::string_view sourceName(Source source) {
    switch (source) {
    case Source::Click: return "click";
    case Source::Key: return "key";
    case Source::Action: return "action";
    case Source::Timer: return "timer";
    }
    return "";
}

int EventHub::subscribe(Listener listener) {
    listeners_.emplace_back(++next_, std::make_shared<Listener>(std::move(listener)));
    return next_;
}

void EventHub::unsubscribe(int token) {
    std::erase_if(listeners_, [token](const auto& l) { return l.first == token; });
}

void EventHub::publish(const MatchEvent& event) const {
    // A copy: listeners may come and go while the event is told.
    const auto listeners = listeners_;
    for (const auto& [token, listener] : listeners) {
        const bool still = std::any_of(listeners_.begin(), listeners_.end(),
                                       [token = token](const auto& l) { return l.first == token; });
        if (still) (*listener)(event);
    }
}

}  // namespace brelk::seam
