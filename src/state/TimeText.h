#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brelk {

// Seconds to time text: minutes, ":", seconds, each of at least two digits
// ("00:00", "01:30", "100:05"). A negative value reads as the time before
// zero with a leading minus: -20 gives "-00:20", -90 gives "-01:30".
std::string Minutes(std::int16_t Secondes);

// Time text to seconds: the number at the start of the text before the first
// ":" (0 when none) times 60, plus the text behind it, which must be a number
// (run-time error 13 otherwise, also when there is no ":"). A leading minus
// makes the whole reading negative, so that Secondes(Minutes(s)) == s.
double Secondes(std::string_view temps);

// Secondes of a text, or nothing when it is no time text.
std::optional<double> timeSeconds(std::string_view text);

}  // namespace brelk
