// One value written into a profile file of any bytes: it reads back as from a
// file that holds it alone, and around it every byte stays.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>

#include "ScriptedProgram.h"
#include "settings/IniFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brelk;
    static doubles::StartedProgram f;
    FuzzedDataProvider in(data, size);
    const std::string section = in.PickValueInArray({"Form", "Options", "Colors", "Stats", "a"});
    const std::string key = in.PickValueInArray({"PosX", "ListColor", "MatchDuration", "timeditems", "k"});
    const std::string value = in.ConsumeRandomLengthString(300), path = f.dir + "/fuzz.set";
    if (value.find_first_of("\r\n") != std::string::npos) return 0;  // refused, as the unit tests show
    files::writeAll(path, "[" + section + "]\r\n" + key + "=" + value + "\r\n");
    const std::string alone = ini::readValue(path, section, key), before = in.ConsumeRemainingBytesAsString();
    files::writeAll(path, before);
    if (!ini::writeValue(path, section, key, value) || ini::readValue(path, section, key) != alone) __builtin_trap();

    // What went lies within one line; what came is at most a line end, a section's header and the key.
    std::string after;
    files::readRegularFile(path, after);
    const std::string_view b = before, a = after;
    const auto head = std::mismatch(b.begin(), b.end(), a.begin(), a.end()).first - b.begin();
    const auto tail = std::mismatch(b.rbegin(), b.rend() - head, a.rbegin(), a.rend() - head).first - b.rbegin();
    const auto went = b.substr(head, b.size() - head - tail), came = a.substr(head, a.size() - head - tail);
    if (went.find_first_of("\r\n") != went.npos || std::ranges::count(came, '\n') > 3) __builtin_trap();
    return 0;
}
