#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Form.h"

namespace brelk {

class Program;

namespace options {

// The options window, reached by the names of its controls, with its two
// form values. It is made anew at each opening and lives in
// Program::frmOptions while it is open.
class OptionsForm : public Form {
public:
    explicit OptionsForm(TimerScheduler& timers) : Form("frmOptions", timers) {}

    // True only while Form_Load fills the controls: the option rows' handlers
    // then do nothing.
    std::int16_t Loading = 0;
    // The swatch's colour, handed to the colour dialog.
    std::int32_t StartColor = 0;
    // The match length box's text just after the length was last taken from
    // it; taking that same text again adds no second ":00".
    std::optional<std::string> TakenMatchDuration;

    // The colour rows.
    Control& fraColors() { return at("fraColors"); }
    Control& lblName(std::int16_t i) { return at("lblName", i); }
    Control& lblColor(std::int16_t i) { return at("lblColor", i); }
    Control& dlg() { return at("dlg"); }

    // The option rows and the two number boxes.
    Control& fraOptions() { return at("fraOptions"); }
    Control& lblOptionName(std::int16_t i) { return at("lblOptionName", i); }
    Control& picOpt(std::int16_t i) { return at("picOpt", i); }
    Control& optYes(std::int16_t i) { return at("optYes", i); }
    Control& optNo(std::int16_t i) { return at("optNo", i); }
    Control& txtMatchDuration() { return at("txtMatchDuration"); }
    Control& txtLastSeconds() { return at("txtLastSeconds"); }

    // The option sets and the ways out.
    Control& fraSet() { return at("fraSet"); }
    Control& lstIniFiles() { return at("lstIniFiles"); }
    Control& cmdSaveAs() { return at("cmdSaveAs"); }
    Control& cmdDelete() { return at("cmdDelete"); }
    Control& cmdSave() { return at("cmdSave"); }
    Control& cmdCancel() { return at("cmdCancel"); }
};

// The options window that is open; run-time error 5 when none is.
OptionsForm& frmOptions(Program& p);

}  // namespace options
}  // namespace brelk
