#pragma once

#include <optional>
#include <string_view>

namespace brelk {

// The twenty icon words of item lines, in the order of the `icoSample` pictures.
constexpr int kIconCount = 20;
std::string_view iconWord(int index);
// The picture index of a word, compared exactly; none when it is not a catalogue word.
std::optional<int> iconIndex(std::string_view word);

}  // namespace brelk
