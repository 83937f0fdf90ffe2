#include "options/OptionsWindow.h"

#include "options/ColourPicking.h"
#include "options/NumberBoxes.h"
#include "options/OptionRows.h"
#include "options/OptionSets.h"
#include "options/OptionsDesign.h"
#include "options/OptionsForm.h"
#include "platform/Numbers.h"
#include "state/Program.h"

namespace brelk::options {

void Form_Load(Program& p) {
    OptionsForm& f = frmOptions(p);
    Control& window = f.self();
    const Control& main = p.frmMain.self();
    window.setNumber(Prop::Top, main.number(Prop::Top));
    // Against the main window's side that faces the middle of the screen.
    if (p.sys.windows.screenWidth() / 2.0 < main.number(Prop::Left))
        window.setNumber(Prop::Left, main.number(Prop::Left) - window.number(Prop::Width));
    else
        window.setNumber(Prop::Left, main.number(Prop::Left) + main.number(Prop::Width));
    f.Loading = num::True;
    UpdateForm(p);
    PopulateListBox(p);
    f.Loading = num::False;
}

void UpdateForm(Program& p) {
    OptionsForm& f = frmOptions(p);
    for (std::int16_t i = 0; i < kColourRows; ++i)
        f.lblColor(i).setNumber(Prop::BackColor, readVar(p.vars, colourRows()[i].variable).number());
    for (std::int16_t i = 0; i < kFlagRows; ++i) {
        const bool yes = num::isTrue(readVar(p.vars, flagRows()[i].variable).number());
        (yes ? f.optYes(i) : f.optNo(i)).setFlag(Prop::Value, true);
    }
    f.txtMatchDuration().setText(p.vars.MatchDuration);
    f.txtLastSeconds().setText(num::plainText(p.vars.LastSeconds));
}

namespace {

void wire(Program& p, Form& f) {
    f.on("frmOptions", Event::Load, plain(p, Form_Load));
    f.on("optYes", Event::Click, indexed(p, optYes_Click));
    f.on("optNo", Event::Click, indexed(p, optNo_Click));
    f.on("txtLastSeconds", Event::LostFocus, plain(p, txtLastSeconds_LostFocus));
    f.on("txtMatchDuration", Event::GotFocus, plain(p, txtMatchDuration_GotFocus));
    f.on("txtMatchDuration", Event::KeyDown, [&p](const EventArgs& a) {
        txtMatchDuration_KeyDown(p, static_cast<std::int16_t>(a.keyCode), static_cast<std::int16_t>(a.shift));
    });
    f.on("txtMatchDuration", Event::LostFocus, plain(p, txtMatchDuration_LostFocus));
    f.on("lblColor", Event::Click, indexed(p, lblColor_Click));
    f.on("lblName", Event::Click, indexed(p, lblName_Click));
    f.on("lstIniFiles", Event::Click, plain(p, lstIniFiles_Click));
    f.on("cmdSave", Event::Click, plain(p, cmdSave_Click));
    f.on("cmdSaveAs", Event::Click, plain(p, cmdSaveAs_Click));
    f.on("cmdDelete", Event::Click, plain(p, cmdDelete_Click));
    f.on("cmdCancel", Event::Click, plain(p, cmdCancel_Click));
}

}  // namespace

std::unique_ptr<Form> makeOptionsForm(Program& p) {
    auto form = std::make_unique<OptionsForm>(p.sys.timers);
    designOptionsForm(*form);
    wire(p, *form);
    return form;
}

}  // namespace brelk::options
