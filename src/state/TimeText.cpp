#include "state/TimeText.h"

#include <cmath>
#include <cstdlib>

#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace brelk {

namespace {
std::string twoDigits(int v) {
    std::string s = std::to_string(v);
    return s.size() < 2 ? "0" + s : s;
}
}  // namespace

std::string Minutes(std::int16_t Secondes) {
    const int magnitude = std::abs(static_cast<int>(Secondes));
    const std::string text = twoDigits(magnitude / 60) + ":" + twoDigits(magnitude % 60);
    return Secondes < 0 ? "-" + text : text;
}

double Secondes(std::string_view temps) {
    const auto colon = temps.find(':');
    if (colon == std::string_view::npos) raise(err::TypeMismatch);
    const std::string_view minutesPart = temps.substr(0, colon);
    const double minutes = num::leadingValue(minutesPart);
    const double seconds = num::strictValue(temps.substr(colon + 1));
    const bool negative = num::trimLeft(minutesPart).rfind('-', 0) == 0;
    return negative ? minutes * 60 - seconds : minutes * 60 + seconds;
}

std::optional<double> timeSeconds(std::string_view text) {
    try {
        const double s = Secondes(text);
        if (std::isnan(s)) return std::nullopt;
        return s;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

}  // namespace brelk
