#include "forms/Brelk.h"

#include "forms/MainDesign.h"
#include "forms/Wiring.h"

namespace brelk {

Brelk::Brelk(Services& services) : Program(services) {
    designMainForm(frmMain);
    wireMainForm(*this);
}

}  // namespace brelk
