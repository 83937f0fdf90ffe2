// Any one line of a map (text up to its first CR) as an item line.
#include <exception>

#include "ScriptedProgram.h"
#include "map/Layout.h"
#include "map/Loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static brelk::doubles::StartedProgram f;
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (f.p.vars.ItemCount > 200) brelk::FormInit(f.p);
    try {
        brelk::AddItem(f.p, text.substr(0, text.find('\r')));
    } catch (const std::exception&) {  // a line the map format refuses: the loader's message
    }
    return 0;
}
