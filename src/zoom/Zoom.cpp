#include "zoom/Zoom.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "seam/CoachSection.h"

namespace brelk::zoom {

namespace {
constexpr const char* kKey = "Zoom";
}  // namespace

bool isStep(int percent) { return std::find(kSteps.begin(), kSteps.end(), percent) != kSteps.end(); }

int stepFrom(int percent, int by) {
    const auto here = std::find(kSteps.begin(), kSteps.end(), isStep(percent) ? percent : kBuiltIn) - kSteps.begin();
    const auto last = static_cast<std::ptrdiff_t>(kSteps.size()) - 1;
    return kSteps[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(here + by, 0, last))];
}

void declareZoom(seam::CoachSection& section) {
    std::vector<std::string> words;
    for (const int step : kSteps) words.push_back(std::to_string(step));
    section.declare(kKey, std::move(words), std::to_string(kBuiltIn));
}

int readZoom(const seam::CoachSection& section) { return std::stoi(section.value(kKey)); }

void storeZoom(seam::CoachSection& section, int percent) { section.set(kKey, std::to_string(percent)); }

}  // namespace brelk::zoom
