#include "map/IconCatalogue.h"

#include <array>

namespace brelk {

namespace {
constexpr std::array<std::string_view, kIconCount> kWords = {
    "QUAD", "25H", "REGEN", "50H", "BFG", "BS", "FLIGHT", "GL", "HASTE", "INVIS",
    "LG", "MG", "RL", "MH", "PG", "SG", "RA", "RG", "YA", "MEDKIT"};
}

std::string_view iconWord(int index) {
    return index >= 0 && index < kIconCount ? kWords[index] : std::string_view();
}

std::optional<int> iconIndex(std::string_view word) {
    for (int i = 0; i < kIconCount; ++i)
        if (kWords[i] == word) return i;
    return std::nullopt;
}

}  // namespace brelk
