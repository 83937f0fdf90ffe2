// The platform reaching up to the main window: the layer check must refuse it.
#include "forms/Brelk.h"
