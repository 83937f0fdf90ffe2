#include "about/OpenWeb.h"

#include "platform/Dialogs.h"
#include "state/Program.h"

namespace brelk {

std::string webPageAddress() { return std::string("https://") + kWebHost + "/ressources/brelk/"; }

void OpenWebPage(Program& p, const std::string& URL) {
    if (p.sys.windows.openUrl(URL)) return;
    p.MsgBox("No web browser could be started to show the page." "\r\r" "Its address is " + URL,
             msgbox::OkOnly | msgbox::Exclamation, "Brelk");
}

}  // namespace brelk
