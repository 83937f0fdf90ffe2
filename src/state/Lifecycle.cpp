#include "state/Handlers.h"
#include "state/Program.h"

namespace brelk {

void registerLifecycleHandlers(Program&) {}

}  // namespace brelk
