// The match length as the clock takes it, for odd texts one by one; whole
// matches over such lengths are played by the clock's scenario files.

#include <gtest/gtest.h>

#include "clock/MatchClock.h"
#include "state/ClockReading.h"
#include "state/ModVars.h"

using namespace brelk;

namespace {

TEST(MatchLength, ATimeTextStaysAsTypedAndAnythingElseIsBroughtIntoRange) {
    struct Case { const char* typed; const char* used; int seconds; };
    const Case cases[] = {
        // Time texts of whole seconds within range are used as they stand.
        {"5:7", "5:7", 307}, {" 12:00 ", " 12:00 ", 720}, {"546:07", "546:07", 32767},
        {"abc:00", "abc:00", 0},    // no minutes read as 0: a match of no length
        {"1.5:00", "1.5:00", 90},   // 90 whole seconds
        // Beyond the largest reading, below zero, fractions of a second (half to even).
        {"546:08", "546:07", 32767}, {"-0:01", "00:00", 0}, {"20:30.5", "20:30", 1230}, {"20:31.5", "20:32", 1232},
        // No time text at all: a match of 20 minutes.
        {"20", "20:00", 1200}, {":", "20:00", 1200}, {"1:30:00", "20:00", 1200},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        ModVars v;
        v.MatchDuration = c.typed;
        EXPECT_EQ(matchDurationText(v), c.used);
        EXPECT_EQ(matchDurationSeconds(v), c.seconds);
    }
}

}  // namespace
