#include "map/Loader.h"
#include "platform/Events.h"
#include "state/Handlers.h"
#include "state/Program.h"

namespace brelk {

void registerMapHandlers(Program& p) {
    p.frmMain.on("mnuLoad", Event::Click, [&p](const EventArgs&) { mnuLoad_Click(p); });
    p.frmMain.on("lblMapName", Event::DblClick, [&p](const EventArgs&) { mnuLoad_Click(p); });
}

}  // namespace brelk
