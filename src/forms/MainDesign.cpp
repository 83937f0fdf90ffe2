#include "forms/MainDesign.h"

#include <string>

#include "map/IconCatalogue.h"
#include "platform/Design.h"
#include "state/MainForm.h"

namespace brelk {

using namespace design;

namespace {

constexpr const char* kClockTip = "Clic to start/pause, right clic to set";

}  // namespace

void designMainForm(MainForm& f) {
    Control& form = f.self();
    form.setCaption("Brelk");
    geometry(form, 0, 0, 9855, 7350);
    form.set(Prop::BorderStyle, 0);

    // The map name and its shadow; the shadow is made first so it lies under the name.
    for (std::int16_t i : {0, 1}) {
        Control& name = label(f, "lblMapName", i);
        name.setCaption("( load a map )");
        geometry(name, i == 0 ? 20 : 0, i == 0 ? 20 : 0, 1695, 255);
        name.setNumber(Prop::ForeColor, i == 0 ? 0x00000040 : 0x000000C0);
        font(name, "MS Sans Serif", 9.75, false);
        name.setNumber(Prop::Alignment, align::Center);
        // Only the name itself tells what a double click does; an "&" shows
        // as itself there and differently in the shadow.
        if (i == 1) name.set(Prop::ToolTipText, "Double-Click to load a map");
        name.setFlag(Prop::UseMnemonic, i == 0);
    }

    Control& popup = commandButton(f, "cmdPopup", nullptr, ">", 1680, 40, 220, 220, 0);
    font(popup, "MS Sans Serif", 8.25, true);
    popup.set(Prop::ToolTipText, "Menu");

    Control& status = label(f, "lblMatchStatus");
    status.setCaption("Not Started");
    geometry(status, 0, 405, 1315, 255);
    status.setNumber(Prop::ForeColor, 0x00FF0000);
    font(status, "Arial", 9, true);
    status.setNumber(Prop::Alignment, align::Center);
    status.set(Prop::ToolTipText, kClockTip);

    Control& clock = label(f, "lblMatchTimer");
    clock.setCaption("20:00");
    geometry(clock, 1320, 400, 495, 255);
    clock.setNumber(Prop::ForeColor, 0x00FF0000);
    font(clock, "Arial", 9.75, true);
    clock.setNumber(Prop::Alignment, align::Right);
    clock.set(Prop::ToolTipText, kClockTip);

    timer(f, "timerMatch", std::nullopt, 1000, "");

    // The tune panel and its buttons, placed relative to the panel.
    Control& tune = f.add(ControlKind::PictureBox, "picTune");
    geometry(tune, 1200, 630, 660, 735);
    tune.setVisible(false);
    tune.setNumber(Prop::TabIndex, 11);
    commandButton(f, "cmdMinPlus", &tune, "+", 0, 0, 300, 195, 13);
    commandButton(f, "cmdMinMoins", &tune, "-", 0, 200, 300, 195, 14);
    commandButton(f, "cmdSecPlus", &tune, "+", 300, 0, 300, 195, 15);
    commandButton(f, "cmdSecMoins", &tune, "-", 300, 200, 300, 195, 16);
    commandButton(f, "cmdCloseTune", &tune, "OK", 0, 420, 600, 255, 12).setFlag(Prop::Cancel, true);

    // The catalogue pictures, beyond the right edge of the running window.
    for (std::int16_t i = 0; i < kIconCount; ++i) {
        Control& sample = f.addMember(ControlKind::Image, "icoSample", i);
        geometry(sample, 3960 + 480 * (i % 10), 3000 + 480 * (i / 10), 480, 480);
        sample.set(Prop::Picture, std::string(iconWord(i)));
    }

    // Row prototypes, member 0 of each array, beyond the right edge as well.
    Control& fond = f.addMember(ControlKind::Label, "lblFond", 0);
    geometry(fond, 3840, 360, 1815, 360);
    fond.setNumber(Prop::BackColor, 0x00C0C0C0);
    fond.set(Prop::BackStyle, 1);

    Control& item = label(f, "lblItem", 0);
    item.setCaption("Upper");
    geometry(item, 4080, 360, 495, 255);
    item.setNumber(Prop::ForeColor, 0x00000000);
    font(item, "Arial", 8.25, true);
    item.setNumber(Prop::Alignment, align::Right);
    item.setFlag(Prop::UseMnemonic, false);

    Control& icon = f.addMember(ControlKind::Image, "ico", 0);
    geometry(icon, 4680, 360, 300, 300);
    icon.setFlag(Prop::Stretch, true);

    for (const char* name : {"lblTimer", "lblTimerGlobal"}) {
        Control& t = label(f, name, 0);
        t.setCaption("01:44");
        geometry(t, std::string(name) == "lblTimer" ? 5040 : 5640, 360, 465, 255);
        t.setNumber(Prop::ForeColor, 0x00404040);
        font(t, "Arial", 8.25, false);
        t.setNumber(Prop::Alignment, align::Right);
    }

    timer(f, "timerItem", 0, 1000, "");
    timer(f, "timerFlash", 0, 333, "12");
    timer(f, "timerClick", 0, 10, "3");

    Control& cat = label(f, "lblCat", 0);
    cat.setCaption("Category");
    geometry(cat, 3840, 0, 1815, 255);
    cat.setNumber(Prop::ForeColor, 0x00808080);
    cat.setFlag(Prop::UseMnemonic, false);

    Control& line = f.addMember(ControlKind::Line, "lineCat", 0);
    line.setNumber(Prop::X1, 3840);
    line.setNumber(Prop::Y1, 240);
    line.setNumber(Prop::X2, 5640);
    line.setNumber(Prop::Y2, 240);
    line.setNumber(Prop::BorderColor, 0x00808080);

    Control& dialog = f.add(ControlKind::CommonDialog, "cdl1");
    dialog.set(Prop::DialogTitle, "Load Map");
    dialog.set(Prop::FileName, "*.txt");

    // Popup menus: the top-level entries are hidden, so there is no menu bar.
    Control& coach = menu(f, "mnuCoach", nullptr, "Coach");
    coach.setVisible(false);
    menu(f, "mnuLoad", &coach, "Load Map");
    menu(f, "mnuOptions", &coach, "Options ...");
    menu(f, "mnutemp", &coach, "-");
    menu(f, "mnuAbout", &coach, "About Brelk");
    menu(f, "mnuExit", &coach, "Exit");
    Control& matchTimer = menu(f, "mnuMatchTimer", nullptr, "Match Timer");
    matchTimer.setVisible(false);
    menu(f, "mnuMatchTimerSet", &matchTimer, "Tune timer ...");
}

}  // namespace brelk
