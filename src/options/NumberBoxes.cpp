#include "options/NumberBoxes.h"

#include <string>

#include "options/OptionsForm.h"
#include "platform/Dialogs.h"
#include "platform/Events.h"
#include "platform/Numbers.h"
#include "settings/Settings.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"

namespace brelk::options {

void txtLastSeconds_LostFocus(Program& p) {
    Control& box = frmOptions(p).txtLastSeconds();
    const std::string text = num::trim(box.text());
    if (const auto seconds = readInteger(text)) {
        p.vars.LastSeconds = static_cast<std::int16_t>(*seconds);
        return;
    }
    // No number of 16 bits: the value in force stays, and the box shows it again.
    const std::string kept = num::plainText(p.vars.LastSeconds);
    box.setText(kept);
    p.MsgBox("The last seconds must be a number from -32768 to 32767, and \"" + text +
                 "\" is not one.\r\nThey stay at " + kept + ".",
             msgbox::Exclamation, "Brelk Options");
}

void txtMatchDuration_GotFocus(Program& p) {
    OptionsForm& f = frmOptions(p);
    f.TakenMatchDuration.reset();
    f.txtMatchDuration().setText(num::withoutEvery(f.txtMatchDuration().text(), ":00"));
}

void txtMatchDuration_KeyDown(Program& p, std::int16_t KeyCode, std::int16_t) {
    Control& box = frmOptions(p).txtMatchDuration();
    const double before = num::leadingValue(box.text());
    if (before > 1 && (KeyCode == key::Down || KeyCode == key::Left)) box.setText(num::plainText(before - 1));
    const double now = num::leadingValue(box.text());
    if (now < 98 && (KeyCode == key::Right || KeyCode == key::Up)) box.setText(num::plainText(now + 1));
    box.setNumber(Prop::SelStart, 4);
    if (KeyCode == key::Return) txtMatchDuration_LostFocus(p);
}

void txtMatchDuration_LostFocus(Program& p) {
    OptionsForm& f = frmOptions(p);
    Control& box = f.txtMatchDuration();
    // Enter has taken the length from this very text already.
    if (f.TakenMatchDuration == box.text()) return;
    box.setText(box.text() + ":00");
    p.vars.MatchDuration = num::trim(box.text());
    if (p.vars.MatchState == match::NotStarted) {
        p.frmMain.lblMatchTimer().setCaption(p.vars.MatchDuration);
        tell(p, seam::Happening::ClockSet);
    }
    f.TakenMatchDuration = box.text();
}

}  // namespace brelk::options
