// Any bytes as a map file, chosen in the open dialog and loaded as a user does.
#include "ScriptedProgram.h"
#include "map/Loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static brelk::doubles::StartedProgram f;
    brelk::files::writeAll(f.dir + "/map.txt", std::string(reinterpret_cast<const char*>(data), size));
    f.dialogs.boxes.clear();
    f.dialogs.openAnswers.push_back({"map.txt"});
    brelk::mnuLoad_Click(f.p);
    return 0;
}
