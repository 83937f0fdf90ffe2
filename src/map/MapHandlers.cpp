#include "state/Handlers.h"
#include "state/Program.h"

namespace brelk {

void registerMapHandlers(Program&) {}

}  // namespace brelk
