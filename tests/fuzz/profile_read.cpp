// Any bytes as a profile file: every key read alone, then as an option set.
#include "ScriptedProgram.h"
#include "settings/IniFile.h"
#include "settings/Settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static brelk::doubles::StartedProgram f;
    const std::string path = f.dir + "/fuzz.set";
    brelk::files::writeAll(path, std::string(reinterpret_cast<const char*>(data), size));
    for (const brelk::SharedVariable& s : brelk::sharedVariables())
        brelk::readValue(s.kind, brelk::ini::readValue(path, s.section, s.name));
    f.dialogs.boxes.clear();
    brelk::ReadIniFile(f.p, "fuzz.set");
    return 0;
}
