#include "map/Loader.h"

#include <cstdint>
#include <exception>
#include <string>

#include "map/Layout.h"
#include "map/ListLook.h"
#include "platform/Dialogs.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "state/ClockReading.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"
#include "state/RowRange.h"

namespace brelk {

namespace {

std::string withoutTxt(std::string name) {
    for (std::size_t pos; (pos = name.find(".txt")) != std::string::npos;) name.erase(pos, 4);
    return name;
}

// The line as the error message shows it: a line of a binary or runaway file
// is cut so the box stays readable.
std::string shownLine(const std::string& line) {
    constexpr std::size_t kMaxShown = 500;
    const std::size_t bytes = files::utf8PrefixBytes(line, kMaxShown);
    return bytes < line.size() ? line.substr(0, bytes) + "..." : line;
}

}  // namespace

void mnuLoad_Click(Program& p) {
    auto& f = p.frmMain;
    Control& dialog = f.cdl1();
    dialog.set(Prop::FileName, "*.txt");
    dialog.set(Prop::InitDir, p.sys.app.mapDir.empty() ? p.sys.app.path : p.sys.app.mapDir);
    dialog.setFlag(Prop::CancelError, true);

    auto chosen = p.dialogs().openFile(
        {dialog.get(Prop::DialogTitle).text(), dialog.get(Prop::InitDir).text(), dialog.get(Prop::FileName).text()});
    if (!chosen) return;  // cancelled: nothing changes
    dialog.set(Prop::FileName, chosen->fileName);
    dialog.set(Prop::FileTitle, chosen->fileTitle);

    std::int16_t LineNumber = 0;
    std::string line;
    files::LineReader file;
    try {
        f.lblMapName(0).setCaption(withoutTxt(chosen->fileTitle));
        f.lblMapName(1).setCaption(f.lblMapName(0).caption());
        file.open(chosen->fileName);  // before FormInit: a file that can't be opened leaves the rows
        FormInit(p);
        beginMapOutline(p);
        while (!file.eof()) {
            line = file.readLine();
            LineNumber = num::add16(LineNumber, 1);
            if (line.empty() || line[0] == '#') continue;
            if (line[0] == ':') AddCategory(p, line.substr(1));
            else AddItem(p, line);
        }
        file.close();
    } catch (const std::exception&) {
        // Any failure ends the load the same way, a file too big for memory too.
        p.MsgBox("An error occured when reading file (wrong file format ?)\r\nFailed while reading line " +
                     num::numberText(LineNumber) + " :\r\n" + shownLine(line),
                 msgbox::Critical, "WTF ?!");
        file.close();
        tellMapLoaded(p);
        return;
    }

    ItemBackground(p, num::isTrue(p.vars.ListColor));
    f.self().setNumber(Prop::Height, f.self().number(Prop::Height) + p.vars.NextRowTop - 200);
    AjusteLargeur(p);
    ChangeCategoryColor(p);
    tellMapLoaded(p);
}

void FormInit(Program& p) {
    auto& f = p.frmMain;
    auto& v = p.vars;
    f.self().setNumber(Prop::Width, 2050);
    f.self().setNumber(Prop::Height, 700);
    for (const std::int16_t i : rowsUpTo(v.ItemCount))
        for (const char* name : {"lblFond", "lblItem", "lblTimer", "ico", "timerItem", "timerFlash", "timerClick",
                                 "lblTimerGlobal"})
            f.Unload(name, i);
    for (const std::int16_t i : rowsUpTo(v.CategoryCount)) {
        f.Unload("lblCat", i);
        f.Unload("lineCat", i);
    }
    f.timerMatch().setEnabled(false);
    f.lblMatchTimer().setCaption(matchDurationText(v));
    v.MatchState = match::NotStarted;
    v.CategoryCount = 0;
    v.ItemCount = 0;
    v.NextRowTop = 600;
}

}  // namespace brelk
