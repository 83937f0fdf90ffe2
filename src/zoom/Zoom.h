#pragma once

#include <array>

namespace brelk::extras {
class CoachSection;
}

namespace brelk::zoom {

// The sizes the windows can be drawn at, in percent of their designed size.
inline constexpr std::array<int, 6> kSteps{100, 125, 150, 200, 250, 300};
inline constexpr int kBuiltIn = 100;

bool isStep(int percent);
// The step `by` steps above `percent` (below when negative), within the
// steps; a percent that is not a step counts as the built-in one.
int stepFrom(int percent, int by);

// The [Coach] key "Zoom": one of the steps, 100 unless the coach changed it.
void declareZoom(extras::CoachSection& section);
int readZoom(const extras::CoachSection& section);
void storeZoom(extras::CoachSection& section, int percent);

}  // namespace brelk::zoom
