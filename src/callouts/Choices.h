#pragma once

#include "callouts/Voice.h"

namespace brelk::seam {
class CoachSection;
}

namespace brelk::callouts {

// The coach's call-out settings, with their built-in values: silent, as the
// window always was, until the coach picks a voice or a tone.
struct Choices {
    Sound sound = Sound::Off;
    int lead = 10;  // seconds before an item is due; 0: no call before it
    bool upCall = true;
    bool matchCalls = true;
    int volume = 100;  // percent

    bool operator==(const Choices&) const = default;
};

// The values each setting may take, as the menu offers them.
constexpr int kLeadTimes[] = {0, 5, 10, 15, 20, 30};
constexpr int kVolumes[] = {25, 50, 75, 100};

// The settings as keys of the profile file's [Coach] section.
void declareChoices(seam::CoachSection& section);
Choices readChoices(const seam::CoachSection& section);
void storeChoices(seam::CoachSection& section, const Choices& choices);

}  // namespace brelk::callouts
