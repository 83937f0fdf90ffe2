#include "options/SetNames.h"

#include <array>

#include "platform/Numbers.h"

namespace brelk::options {

namespace {

// Names Windows keeps for its devices, whatever extension follows them.
bool isDeviceName(std::string_view name) {
    std::string base = num::upper(name.substr(0, name.find('.')));
    base = num::trimRight(base);
    static const std::array<std::string_view, 4> plain = {"CON", "PRN", "AUX", "NUL"};
    for (std::string_view d : plain)
        if (base == d) return true;
    return base.size() == 4 && (base.rfind("COM", 0) == 0 || base.rfind("LPT", 0) == 0) && base[3] >= '1' &&
           base[3] <= '9';
}

// The longest file name most file systems take, in bytes.
constexpr std::size_t kMaxFileName = 255;

}  // namespace

std::optional<std::string> setNameProblem(std::string_view name) {
    if (name.empty()) return "it is empty";
    for (unsigned char c : name)
        if (c < 0x20 || c == 0x7F) return "it holds a control character";
    for (char c : std::string_view("\\/:*?\"<>|"))
        if (name.find(c) != std::string_view::npos) return std::string("it holds the character ") + c;
    if (name.find("..") != std::string_view::npos) return "it holds \"..\"";
    if (name.front() == '.') return "it starts with a dot, which would hide the set";
    if (isDeviceName(name)) return "Windows keeps \"" + std::string(name.substr(0, name.find('.'))) +
                                   "\" for a device";
    if (name.size() + 4 > kMaxFileName) return "it is too long for a file name";
    return std::nullopt;
}

}  // namespace brelk::options
