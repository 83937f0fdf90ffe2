#include "callouts/Choices.h"

#include <string>
#include <vector>

#include "seam/CoachSection.h"

namespace brelk::callouts {

namespace {

constexpr const char* kSound = "CallOuts";
constexpr const char* kLead = "CallOutLead";
constexpr const char* kUp = "CallOutUp";
constexpr const char* kMatch = "CallOutMatch";
constexpr const char* kVolume = "CallOutVolume";

const char* soundWord(Sound s) { return s == Sound::Voice ? "Voice" : s == Sound::Tone ? "Tone" : "Off"; }
const char* flagWord(bool b) { return b ? "True" : "False"; }
std::string leadWord(int lead) { return lead == 0 ? "Off" : std::to_string(lead); }

template <std::size_t N>
std::vector<std::string> words(const int (&values)[N], std::string (*word)(int)) {
    std::vector<std::string> all;
    for (const int v : values) all.push_back(word(v));
    return all;
}

std::string volumeWord(int volume) { return std::to_string(volume); }

}  // namespace

void declareChoices(seam::CoachSection& section) {
    const Choices builtIn;
    section.declare(kSound, {"Off", "Voice", "Tone"}, soundWord(builtIn.sound));
    section.declare(kLead, words(kLeadTimes, leadWord), leadWord(builtIn.lead));
    section.declare(kUp, {"True", "False"}, flagWord(builtIn.upCall));
    section.declare(kMatch, {"True", "False"}, flagWord(builtIn.matchCalls));
    section.declare(kVolume, words(kVolumes, volumeWord), volumeWord(builtIn.volume));
}

Choices readChoices(const seam::CoachSection& section) {
    Choices c;
    const std::string& sound = section.value(kSound);
    c.sound = sound == "Voice" ? Sound::Voice : sound == "Tone" ? Sound::Tone : Sound::Off;
    const std::string& lead = section.value(kLead);
    c.lead = lead == "Off" ? 0 : std::stoi(lead);
    c.upCall = section.value(kUp) == "True";
    c.matchCalls = section.value(kMatch) == "True";
    c.volume = std::stoi(section.value(kVolume));
    return c;
}

void storeChoices(seam::CoachSection& section, const Choices& c) {
    section.set(kSound, soundWord(c.sound));
    section.set(kLead, leadWord(c.lead));
    section.set(kUp, flagWord(c.upCall));
    section.set(kMatch, flagWord(c.matchCalls));
    section.set(kVolume, volumeWord(c.volume));
}

}  // namespace brelk::callouts
