#include "options/ColourPicking.h"

#include "clock/MatchClock.h"
#include "map/ListLook.h"
#include "options/OptionsForm.h"
#include "platform/CommonDialog.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"
#include "state/Program.h"
#include "timers/RowLook.h"

namespace brelk::options {

namespace {

void listBackground(Program& p) { ItemBackground(p, num::isTrue(p.vars.ListColor)); }

// The colour dialog starts on the given colour, with its custom colours open.
constexpr int kStartOnColourFullOpen = 3;

}  // namespace

const std::array<ColourRow, kColourRows>& colourRows() {
    static const std::array<ColourRow, kColourRows> rows = {{
        {"Background", "background color of the main window", "FormColor", ChangeFormColor},
        {"Item List - Color 1", "Color1 of items list when 2 color mode selected", "ListColor1", listBackground},
        {"Item List - Color 2", "Color1 of items list when 2 color mode selected", "ListColor2", listBackground},
        {"Idle timer color", "Color of item timers when inactive", "IdleTimerColor", ChangeTimerColor},
        {"Active timer color", "Color of item timers when respawn countdown is going", "ActiveTimerColor",
         ChangeTimerColor},
        {"Idle item color", "Color of item name when inactive", "IdleItemColor", ChangeTimerColor},
        {"Active item color", "Color of item timers when respawn countdown is going", "ActiveItemColor",
         ChangeTimerColor},
        {"Last seconds timer color", "Colors of timers for the last seconds", "LastSecondsTimerColor",
         ChangeTimerColor},
        {"Category separator color", "Color of the category names", "CategoryColor", ChangeCategoryColor},
        {"Map name color", "Color of the map name, displayed at first line", "MapNameColor", ChangeMapNameColor},
        {"Match timer color", "Color of the Match Timer", "MatchTimerColor", ChangeGlobalTimerColor},
        {"Paused match timer color", "Color of the Match Timer when paused", "PausedMatchTimerColor",
         ChangeGlobalTimerColor},
        {"Last 60s match timer color", "Color of the Match Timer during the last minute",
         "LastMinuteMatchTimerColor", ChangeGlobalTimerColor},
    }};
    return rows;
}

void lblColor_Click(Program& p, std::int16_t Index) {
    OptionsForm& f = frmOptions(p);
    const ColourRow& row = colourRows().at(static_cast<std::size_t>(Index));
    f.StartColor = num::toInt32(f.lblColor(Index).number(Prop::BackColor));
    PickColor(p, Index);
    // Whatever the dialog's outcome, the swatch's colour is the row's.
    writeVar(p.vars, row.variable, Value(num::toInt32(f.lblColor(Index).number(Prop::BackColor))));
    row.repaint(p);
}

void lblName_Click(Program& p, std::int16_t Index) { lblColor_Click(p, Index); }

void PickColor(Program& p, std::int16_t Index) {
    OptionsForm& f = frmOptions(p);
    Control& dlg = f.dlg();
    dlg.set(Prop::DialogTitle, "kikoo");
    dlg.setFlag(Prop::CancelError, true);
    dlg.setNumber(Prop::Color, f.StartColor);
    dlg.setNumber(Prop::Flags, kStartOnColourFullOpen);
    try {
        ShowColor(dlg, p.dialogs());
    } catch (const RuntimeError& e) {
        if (e.number() == err::DialogCancelled) return;  // the swatch keeps its colour
    }
    f.lblColor(Index).setNumber(Prop::BackColor, dlg.number(Prop::Color));
}

}  // namespace brelk::options
