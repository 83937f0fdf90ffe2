// Any bytes as a profile file: every key read alone, then as an option set.
#include "FuzzProgram.h"
#include "settings/IniFile.h"
#include "settings/Settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static brelk::fuzz::FuzzProgram f;
    const std::string path = f.put("fuzz.set", data, size);
    for (const brelk::SharedVariable& s : brelk::sharedVariables()) {
        const std::string value = brelk::ini::readValue(path, s.section, s.name);
        if (value.find_first_of("\r\n") != std::string::npos) __builtin_trap();  // a value never spans lines
        brelk::readValue(s.kind, value);
    }
    f.dialogs.boxes.clear();
    brelk::ReadIniFile(f.p, "fuzz.set");
    return 0;
}
