#pragma once

#include <cstdint>

#include "platform/Form.h"

namespace brelk {

// The main window, reached by the names of its controls: the top strip, the
// tune panel, the menus, the twenty catalogue pictures and the row arrays,
// whose member 0 is each row control's prototype. What the controls are
// made of is the window's design, given by the program's top layer.
class MainForm : public Form {
public:
    explicit MainForm(TimerScheduler& timers) : Form("frmMain", timers) {}

    // Row arrays.
    Control& lblFond(std::int16_t i) { return at("lblFond", i); }
    Control& lblItem(std::int16_t i) { return at("lblItem", i); }
    Control& lblTimer(std::int16_t i) { return at("lblTimer", i); }
    Control& lblTimerGlobal(std::int16_t i) { return at("lblTimerGlobal", i); }
    Control& ico(std::int16_t i) { return at("ico", i); }
    Control& timerItem(std::int16_t i) { return at("timerItem", i); }
    Control& timerFlash(std::int16_t i) { return at("timerFlash", i); }
    Control& timerClick(std::int16_t i) { return at("timerClick", i); }
    Control& lblCat(std::int16_t i) { return at("lblCat", i); }
    Control& lineCat(std::int16_t i) { return at("lineCat", i); }
    Control& icoSample(std::int16_t i) { return at("icoSample", i); }

    // Top strip.
    Control& lblMapName(std::int16_t i) { return at("lblMapName", i); }
    Control& cmdPopup() { return at("cmdPopup"); }
    Control& lblMatchStatus() { return at("lblMatchStatus"); }
    Control& lblMatchTimer() { return at("lblMatchTimer"); }
    Control& timerMatch() { return at("timerMatch"); }
    Control& cdl1() { return at("cdl1"); }

    // Tune panel.
    Control& picTune() { return at("picTune"); }
    Control& cmdMinPlus() { return at("cmdMinPlus"); }
    Control& cmdMinMoins() { return at("cmdMinMoins"); }
    Control& cmdSecPlus() { return at("cmdSecPlus"); }
    Control& cmdSecMoins() { return at("cmdSecMoins"); }
    Control& cmdCloseTune() { return at("cmdCloseTune"); }

    // Menus.
    Control& mnuCoach() { return at("mnuCoach"); }
    Control& mnuMatchTimer() { return at("mnuMatchTimer"); }
};

}  // namespace brelk
