#include "map/Layout.h"

#include "map/ItemLine.h"
#include "platform/Numbers.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"
#include "state/RowRange.h"
#include "timers/Countdown.h"

namespace brelk {

namespace {
constexpr double kCharWidth = 120;  // the one text measure of the list
}

void AddCategory(Program& p, const std::string& CatName) {
    auto& v = p.vars;
    auto& f = p.frmMain;
    v.CategoryCount = num::add16(v.CategoryCount, 1);
    v.NextRowTop = num::add32(v.NextRowTop, 100);

    Control& cat = f.Load("lblCat", v.CategoryCount);
    cat.setVisible(true);
    cat.setCaption(CatName);
    cat.setNumber(Prop::Height, 200);
    cat.setNumber(Prop::Width, 1500);
    cat.setNumber(Prop::Left, 120);
    cat.setNumber(Prop::Top, v.NextRowTop);

    Control& line = f.Load("lineCat", v.CategoryCount);
    line.setVisible(true);
    line.setNumber(Prop::X1, 120);
    line.setNumber(Prop::X2, 1800);
    line.setNumber(Prop::Y1, v.NextRowTop + 200);
    line.setNumber(Prop::Y2, v.NextRowTop + 200);

    v.NextRowTop = num::add32(v.NextRowTop, 300);
    noteCategory(p, CatName);
}

void AddItem(Program& p, std::string item) {
    const ItemLine line = parseItemLine(item);
    auto& v = p.vars;
    auto& f = p.frmMain;
    const double top = v.NextRowTop;

    v.ItemCount = num::add16(v.ItemCount, 1);
    const std::int16_t n = v.ItemCount;
    for (const char* name : {"ico", "lblTimer", "lblFond", "lblItem", "timerItem", "timerFlash",
                             "timerClick", "lblTimerGlobal"})
        f.Load(name, n);

    Control& fond = f.lblFond(n);
    fond.setVisible(true);
    fond.setNumber(Prop::Width, 1700);
    fond.setNumber(Prop::Left, 120);
    fond.setNumber(Prop::Top, top);
    fond.ZOrder(1);
    const std::string tip = rowTip(line);  // a bad seconds text fails here
    fond.set(Prop::ToolTipText, tip);

    Control& name = f.lblItem(n);
    name.setVisible(true);
    name.setCaption(line.ItemText);
    name.setNumber(Prop::Height, 255);
    name.setNumber(Prop::Width, kCharWidth * nameLength(line.ItemText));
    name.setNumber(Prop::Left, 1200 - name.number(Prop::Width));
    name.setNumber(Prop::Top, top + 50);
    name.set(Prop::ToolTipText, tip);

    if (!line.IconWord.empty()) {
        Control& icon = f.ico(n);
        icon.setVisible(true);
        icon.set(Prop::Picture, f.icoSample(static_cast<std::int16_t>(line.IconIndex)).get(Prop::Picture));
        icon.setNumber(Prop::Height, 300);
        icon.setNumber(Prop::Width, 300);
        const std::string& caption = line.ItemText;
        double left = name.number(Prop::Left) - 100;
        if (caption != "    ") {
            const auto place = caption.find("    ");
            // Position of the icon's place in characters, counted from 1.
            left += kCharWidth * (num::charCount(caption.substr(0, place)) + 1);
        }
        icon.setNumber(Prop::Left, left);
        icon.setNumber(Prop::Top, top + 15);
        icon.set(Prop::ToolTipText, tip);
    }

    Control& timer = f.lblTimer(n);
    timer.setNumber(Prop::Height, 255);
    timer.setNumber(Prop::Width, 480);
    timer.setNumber(Prop::Left, 1300);
    timer.setNumber(Prop::Top, top + 50);
    timer.set(Prop::ToolTipText, tip);

    Control& global = f.lblTimerGlobal(n);
    global.setVisible(num::isTrue(v.ShowItemsTimers));
    global.setNumber(Prop::Height, 255);
    global.setNumber(Prop::Width, 480);
    global.setNumber(Prop::Left, 1800);
    global.setNumber(Prop::Top, top + 50);
    global.set(Prop::ToolTipText, "Next respawn time");

    f.timerItem(n).setTag(line.RespawnText);
    TimerInit(p, n);
    v.NextRowTop = num::add32(v.NextRowTop, 350);
    noteRow(p, n, line.ItemTitle, line.ItemText, line.IconWord, num::strictValue(line.RespawnText));
}

void AjusteLargeur(Program& p) {
    auto& v = p.vars;
    auto& f = p.frmMain;
    const double growth = num::isTrue(v.ShowItemsTimers) ? 480 : 0;

    f.lblMapName(0).setNumber(Prop::Width, 1695 + growth);
    f.lblMapName(1).setNumber(Prop::Width, f.lblMapName(0).number(Prop::Width));
    f.lblMatchStatus().setNumber(Prop::Width, 1315 + growth);
    f.cmdPopup().setNumber(Prop::Left, 1680 + growth);
    f.self().setNumber(Prop::Width, 2050 + growth);
    f.lblMatchTimer().setNumber(Prop::Left, 1320 + growth);
    f.picTune().setNumber(Prop::Left, 1200 + growth);

    for (const std::int16_t i : rowsUpTo(v.CategoryCount)) f.lineCat(i).setNumber(Prop::X2, 1800 + growth);
    for (const std::int16_t i : rowsUpTo(v.ItemCount)) {
        if (isCompleteRow(p, i) && (f.timerItem(i).enabled() || v.MatchState != match::Going))
            f.lblTimerGlobal(i).setVisible(num::isTrue(v.ShowItemsTimers));
        f.lblFond(i).setNumber(Prop::Width, 1700 + growth);
    }
    tell(p, seam::Happening::LookChanged);
}

}  // namespace brelk
