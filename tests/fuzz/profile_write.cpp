// One value written into a profile file of any bytes: it reads back as it
// reads from a file that holds it alone, and every other line stays.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <vector>

#include "FuzzProgram.h"
#include "settings/IniFile.h"

namespace {

// Line texts, without their ends (CR LF, LF or a lone CR).
std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> out;
    for (std::size_t begin = 0, end; begin < text.size(); begin = end + (text.compare(end, 2, "\r\n") ? 1 : 2)) {
        end = std::min(text.find_first_of("\r\n", begin), text.size());
        out.push_back(text.substr(begin, end - begin));
    }
    return out;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using brelk::ini::readValue;
    static brelk::fuzz::FuzzProgram f;
    FuzzedDataProvider in(data, size);
    const std::string section = in.PickValueInArray({"Form", "Options", "Colors", "Stats", "a"});
    const std::string key = in.PickValueInArray({"PosX", "ListColor", "MatchDuration", "timeditems", "k"});
    const std::string value = in.ConsumeRandomLengthString(300);
    const std::string before = in.ConsumeRemainingBytesAsString();
    const std::string path = f.put("fuzz.set", before);

    const bool written = brelk::ini::writeValue(path, section, key, value);
    std::string after;
    brelk::files::readRegularFile(path, after);
    if (value.find_first_of("\r\n") != std::string::npos) {
        if (written || after != before) __builtin_trap();  // a line break is refused, the file unchanged
        return 0;
    }
    const std::string alone = f.put("alone.set", "[" + section + "]\r\n" + key + "=" + value + "\r\n");
    if (!written || readValue(path, section, key) != readValue(alone, section, key)) __builtin_trap();

    // Around the change the lines are the same: at most one went, at most two
    // (a new section's header and the key) came.
    const auto b = lines(before), a = lines(after);
    std::size_t head = 0, tail = 0;
    while (head < b.size() && head < a.size() && b[head] == a[head]) ++head;
    while (tail < b.size() - head && tail < a.size() - head && b[b.size() - 1 - tail] == a[a.size() - 1 - tail]) ++tail;
    if (b.size() - head - tail > 1 || a.size() - head - tail > 2) __builtin_trap();
    return 0;
}
