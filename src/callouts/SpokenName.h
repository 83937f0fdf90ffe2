#pragma once

#include <string>
#include <string_view>

namespace brelk::callouts {

// How a row is said, from its item's title (the name of the map line with
// the icon's "ICO_" taken off, "TOP MH"): each catalogue word in its spoken
// form ("MH" -> "mega"), every other word as written, in lower case ("top
// mega"). A word is a run of letters and digits; a title with none is said
// as the row's place ("item four").
std::string spokenName(std::string_view title, int row);

// A whole number in words for 0 to 99 ("thirty"); digits beyond.
std::string numberWords(int n);

}  // namespace brelk::callouts
