#pragma once

#include <string>

namespace brelk {

class Program;
struct ModVars;

// The match clock holds whole seconds in 16 bits: 546:07 is its largest reading.
constexpr double kLargestReading = 32767;

// The match length as the clock uses it. MatchDuration itself when it is a
// time text of whole seconds from 00:00 to 546:07; a length outside that
// range is taken at the nearer limit (a fraction rounded to whole seconds);
// a text that is no time text stands for the standard 20:00, so that a
// hand-edited profile cannot stop the clock.
std::string matchDurationText(const ModVars& v);
double matchDurationSeconds(const ModVars& v);

// The clock's reading in whole seconds. A caption that is no time text
// reads as the reading a match starts from in the present direction: the
// match length counting down, 00:00 counting up.
double clockReading(Program& p);
// Writes `seconds` to the clock, kept within what it can hold.
void showReading(Program& p, double seconds);

}  // namespace brelk
