#pragma once

#include <array>

namespace brelk::seam {
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
void declareZoom(seam::CoachSection& section);
int readZoom(const seam::CoachSection& section);
void storeZoom(seam::CoachSection& section, int percent);

}  // namespace brelk::zoom
