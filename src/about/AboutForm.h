#pragma once

#include <cstdint>
#include <memory>

#include "platform/Form.h"

namespace brelk {

class Program;

// The About window, reached by the names of its controls.
class AboutForm : public Form {
public:
    explicit AboutForm(TimerScheduler& timers) : Form("frmAbout", timers) {}

    Control& cmdOK() { return at("cmdOK"); }
    Control& cmdThx() { return at("cmdThx"); }
    Control& timerThx() { return at("timerThx"); }
    Control& picIcon() { return at("picIcon"); }
    Control& lblThx() { return at("lblThx"); }
    Control& lblStats() { return at("lblStats"); }
    Control& lblVersion() { return at("lblVersion"); }
    Control& lblDescription() { return at("lblDescription"); }
    Control& lblMapName(std::int16_t i) { return at("lblMapName", i); }
    Control& Label1() { return at("Label1"); }
    Control& Label2() { return at("Label2"); }
    Control& Label3() { return at("Label3"); }
    Control& Label4() { return at("Label4"); }
    Control& Label5() { return at("Label5"); }
    Control& Line1() { return at("Line1"); }
};

// The window's scale: twips per unit across and down. The rolling text of
// the thanks panel is placed in these units.
constexpr double kAboutTwipsPerUnitX = 1.064904;
constexpr double kAboutTwipsPerUnitY = 1.448818;

// The window's outer width with the thanks panel closed and open, in twips.
constexpr double kAboutWidthClosed = 5610;
constexpr double kAboutWidthOpen = 7725;

// Lays out every control of the window as it is before it opens.
void designAboutForm(AboutForm& f);

// A fresh About window, laid out and connected to its handlers. The window
// is made anew at each opening, so it always opens as designed.
std::unique_ptr<AboutForm> makeAboutForm(Program& p);

}  // namespace brelk
