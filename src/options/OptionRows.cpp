#include "options/OptionRows.h"

#include "clock/MatchClock.h"
#include "map/Layout.h"
#include "map/ListLook.h"
#include "options/OptionsForm.h"
#include "platform/Numbers.h"
#include "state/Program.h"
#include "timers/RowLook.h"

namespace brelk::options {

const std::array<FlagRow, kFlagRows>& flagRows() {
    static const std::array<FlagRow, kFlagRows> rows = {{
        {"Always on top", "Brelk window always on top", "OnTop", nullptr},
        {"Item list in 2 colors mode", "Item list with a 2 color background for easier reading", "ListColor",
         [](Program& p) { ItemBackground(p, num::isTrue(p.vars.ListColor)); }},
        {"Map name with shadow", "Shadow under the map name", "MapName3D", ChangeMapNameColor},
        {"Active timers are bold", "When countdown going, timers are in bold font", "ActiveTimerBold",
         ChangeTimerColor},
        {"Inactive timers are bold", "When no countdown going, timers are in bold font", "IdleTimerBold",
         ChangeTimerColor},
        {"Active items are bold", "When countdown going, item names are in bold font", "ActiveItemBold",
         ChangeTimerColor},
        {"Inactive items are bold", "When no countdown going, item names are in bold font", "IdleItemBold",
         ChangeTimerColor},
        {"Category names in bold", "Category names are in bold font", "CategoryBold", ChangeCategoryColor},
        {"Show items respawn time", "Show time of respawn for each item", "ShowItemsTimers",
         [](Program& p) {
             ChangeTimerColor(p);
             AjusteLargeur(p);
         }},
        {"Match timer decreasing", "Timer decreasing (a la CPM) or increasing (standard, a la OSP)",
         "MatchTimerReverse", nullptr},
    }};
    return rows;
}

namespace {

void store(Program& p, std::int16_t Index, std::int16_t flag) {
    if (frmOptions(p).Loading) return;
    const FlagRow& row = flagRows().at(static_cast<std::size_t>(Index));
    writeVar(p.vars, row.variable, Value(flag));
    if (row.repaint) row.repaint(p);
}

}  // namespace

void optYes_Click(Program& p, std::int16_t Index) { store(p, Index, num::True); }

void optNo_Click(Program& p, std::int16_t Index) { store(p, Index, num::False); }

}  // namespace brelk::options
