#include "forms/Lifecycle.h"

#include <cstdint>
#include <string>

#include "clock/MatchClock.h"
#include "map/ListLook.h"
#include "map/Loader.h"
#include "platform/Dialogs.h"
#include "platform/Events.h"
#include "platform/Numbers.h"
#include "settings/Settings.h"
#include "state/Program.h"
#include "timers/RowLook.h"

namespace brelk {

namespace {

std::int32_t positionOf(Program& p, const char* key) {
    return static_cast<std::int32_t>(readPosition(ReadIniValue(p, "Form", key, "")));
}

// A usage counter stops at its largest value instead of failing.
std::int16_t countOne(std::int16_t n) { return n < 32767 ? static_cast<std::int16_t>(n + 1) : n; }

void storeTimedItems(Program& p, const char* key) {
    std::string text = num::numberText(p.vars.TimedItems);
    WriteIniValue(p, "Stats", key, text, "");
}

}  // namespace

void Form_Load(Program& p) {
    auto& v = p.vars;
    // A first start has no profile file yet: it begins with the built-in one.
    const bool firstStart = !profileExists(p);
    if (firstStart) writeBuiltInProfile(p);
    // Where it could not be made (a read-only folder, a full disk), no start
    // leaves a profile of a few keys: the program runs without one.
    const bool hasProfile = !firstStart || profileExists(p);

    v.PosX = positionOf(p, "PosX");
    v.PosY = positionOf(p, "PosY");
    // A missing or unreadable flag or counter takes its built-in value.
    v.OnTop = static_cast<std::int16_t>(readFlag(ReadIniValue(p, "Form", "OnTop", "")).value_or(num::True));
    p.frmMain.self().setNumber(Prop::Left, v.PosX);
    p.frmMain.self().setNumber(Prop::Top, v.PosY);
    AlwaysOnTop(p, v.OnTop);

    v.Launched = countOne(static_cast<std::int16_t>(readInteger(ReadIniValue(p, "Stats", "Launched", "")).value_or(0)));
    v.TimedItems = static_cast<std::int16_t>(readInteger(ReadIniValue(p, "Stats", "TimedItems", "")).value_or(0));
    std::string launched = num::numberText(v.Launched);
    if (hasProfile) WriteIniValue(p, "Stats", "Launched", launched, "");

    // The settings begin at their built-in values, so that a key that cannot
    // be read, and every key after it, keeps a usable value. Where the
    // profile file could not be created, a first start runs on them without
    // a message.
    applyBuiltInSettings(p);
    if (hasProfile) ReadIniFile(p, "");
    ChangeTimerColor(p);
    ChangeFormColor(p);
    ChangeListColor(p);
    ChangeCategoryColor(p);
    ChangeMapNameColor(p);
    ChangeGlobalTimerColor(p);
    FormInit(p);
}

void Form_Unload(Program& p) {
    WriteIniFile(p, "");
    storeTimedItems(p, "timeditems");
    p.End();
}

void mnuExit_Click(Program& p) {
    WriteIniFile(p, "");
    // The lifetime count of timed items is kept whichever way the program ends.
    storeTimedItems(p, "timeditems");
    p.End();
}

void cmdPopup_Click(Program& p) {
    if (Control* chosen = p.dialogs().popupMenu(p.frmMain, p.frmMain.mnuCoach()))
        p.frmMain.raise(*chosen, Event::Click);
}

void AlwaysOnTop(Program& p, int Top) { SetWindowTopmost(p, Top == num::True ? 1 : 0); }

void SetWindowTopmost(Program& p, int topmost) { p.sys.windows.setTopmost(p.frmMain, topmost != 0); }

}  // namespace brelk
