#include "state/ClockReading.h"

#include <algorithm>
#include <optional>

#include "platform/Numbers.h"
#include "state/Program.h"
#include "state/TimeText.h"

namespace brelk {

namespace {
constexpr const char* kStandardLength = "20:00";
}  // namespace

std::string matchDurationText(const ModVars& v) {
    const auto length = timeSeconds(v.MatchDuration);
    if (!length) return kStandardLength;
    const double whole = std::clamp(num::roundHalfEven(*length), 0.0, kLargestReading);
    return whole == *length ? v.MatchDuration : Minutes(static_cast<std::int16_t>(whole));
}

double matchDurationSeconds(const ModVars& v) { return Secondes(matchDurationText(v)); }

double clockReading(Program& p) {
    if (const auto reading = timeSeconds(p.frmMain.lblMatchTimer().caption())) return num::roundHalfEven(*reading);
    return num::isTrue(p.vars.MatchTimerReverse) ? matchDurationSeconds(p.vars) : 0;
}

void showReading(Program& p, double seconds) {
    const double held = std::clamp(seconds, -32768.0, kLargestReading);
    p.frmMain.lblMatchTimer().setCaption(Minutes(static_cast<std::int16_t>(held)));
}

}  // namespace brelk
