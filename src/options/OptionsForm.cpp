#include "options/OptionsForm.h"

#include "platform/Errors.h"
#include "state/Program.h"

namespace brelk::options {

OptionsForm& frmOptions(Program& p) {
    auto* form = dynamic_cast<OptionsForm*>(p.frmOptions.get());
    if (!form) raise(err::InvalidCall, "The options window is not open");
    return *form;
}

}  // namespace brelk::options
