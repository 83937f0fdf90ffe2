#include "platform/CommonDialog.h"

#include <cstdint>

#include "platform/Control.h"
#include "platform/Dialogs.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace brelk {

void ShowColor(Control& dialog, Dialogs& dialogs) {
    ColorRequest request;
    request.title = dialog.get(Prop::DialogTitle).text();
    request.start = num::toInt32(dialog.number(Prop::Color));
    const auto chosen = dialogs.showColor(request);
    if (chosen) return dialog.setNumber(Prop::Color, *chosen);
    if (dialog.flag(Prop::CancelError)) raise(err::DialogCancelled);
}

}  // namespace brelk
