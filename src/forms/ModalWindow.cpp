#include "forms/ModalWindow.h"

#include "forms/Lifecycle.h"
#include "platform/Dialogs.h"
#include "platform/Numbers.h"
#include "state/Program.h"

namespace brelk {

void showModalWindow(Program& p, std::unique_ptr<Form>& slot, std::unique_ptr<Form> form) {
    if (num::isTrue(p.vars.OnTop)) AlwaysOnTop(p, num::False);
    slot = std::move(form);
    slot->setErrorReporter([&p](const RuntimeError& e) { p.reportError(e); });
    slot->Load();
    p.dialogs().showModal(*slot);
    slot.reset();
    AlwaysOnTop(p, p.vars.OnTop);
}

}  // namespace brelk
