#include "settings/Settings.h"

#include <algorithm>
#include <cctype>

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "settings/IniFile.h"
#include "state/Program.h"

namespace brelk {

namespace {

std::string path(Program& p, const std::string& IniFile) {
    return ini::profilePath(p.sys.app.path, p.sys.app.exeName, IniFile);
}

bool equalsIgnoringCase(const std::string& a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
           });
}

constexpr double kMaxColour = 16777215;

}  // namespace

std::string ReadIniValue(Program& p, const std::string& Section, const std::string& Key,
                         const std::string& IniFile) {
    return ini::readValue(path(p, IniFile), Section, Key);
}

void WriteIniValue(Program& p, const std::string& Section, const std::string& Key, std::string& Value,
                   const std::string& IniFile) {
    Value = num::trim(Value);
    // A file whose reading failed keeps the user's values only in itself: it
    // is copied before this program first writes over it.
    const std::string file = path(p, IniFile);
    const bool keepCopy = p.unreadProfiles.erase(file) > 0;
    ini::writeValue(file, Section, Key, Value, keepCopy);
}

std::optional<double> readFlag(const std::string& text) {
    const std::string t = num::trim(text);
    if (equalsIgnoringCase(t, "True")) return num::True;
    if (equalsIgnoringCase(t, "False")) return num::False;
    if (!num::isStrictNumber(t)) return std::nullopt;
    return num::strictValue(t) != 0 ? num::True : num::False;
}

std::optional<double> readInteger(const std::string& text) {
    if (!num::isStrictNumber(text)) return std::nullopt;
    const double v = num::roundHalfEven(num::strictValue(text));
    if (v < -32768 || v > 32767) return std::nullopt;
    return v;
}

double readColour(const std::string& text) {
    // A colour outside what a window can show is brought to the nearest one.
    return std::clamp(num::roundHalfEven(num::leadingValue(text)), 0.0, kMaxColour);
}

double readPosition(const std::string& text) {
    // A position beyond what a window coordinate holds stays at the limit.
    return std::clamp(num::roundHalfEven(num::leadingValue(text)), -2147483648.0, 2147483647.0);
}

std::optional<Value> readValue(VarKind kind, const std::string& text) {
    switch (kind) {
    case VarKind::Flag:
        if (auto f = readFlag(text)) return Value(*f);
        return std::nullopt;
    case VarKind::Int16:
        if (auto n = readInteger(text)) return Value(*n);
        return std::nullopt;
    case VarKind::Colour: return Value(readColour(text));
    case VarKind::Int32: return Value(readPosition(text));
    case VarKind::Text: return Value(text);
    }
    return std::nullopt;
}

std::string formatValue(VarKind kind, const Value& value) {
    switch (kind) {
    case VarKind::Flag: return value.number() != 0 ? "True" : "False";
    case VarKind::Int32: return num::plainText(num::roundHalfEven(value.number()));
    case VarKind::Text: return value.text();
    default: return num::plainText(value.number());
    }
}

namespace {

// Reads the settings from `source`; false at the first value that cannot be
// read, the values before it having taken their new values.
template <typename Source>
bool readSettings(Program& p, Source source) {
    for (const SharedVariable& s : sharedVariables()) {
        if (s.stored != Stored::Settings) continue;
        const auto value = readValue(s.kind, source(s));
        if (!value) return false;
        writeVar(p.vars, s, *value);
    }
    return true;
}

// What a profile file keeps of a variable; the window's place is where it
// stands now, not where it stood at start.
Value storedValue(Program& p, const SharedVariable& s) {
    if (s.name == "PosX") return Value(p.frmMain.self().number(Prop::Left));
    if (s.name == "PosY") return Value(p.frmMain.self().number(Prop::Top));
    return readVar(p.vars, s);
}

}  // namespace

void ReadIniFile(Program& p, const std::string& IniFile) {
    const bool whole = readSettings(p, [&](const SharedVariable& s) {
        return ReadIniValue(p, std::string(s.section), std::string(s.name), IniFile);
    });
    if (whole) return;
    p.unreadProfiles.insert(path(p, IniFile));
    p.MsgBox("An error occured when reading file (wrong file format ?)", msgbox::Critical, "WTF ?!");
}

void applyBuiltInSettings(Program& p) {
    readSettings(p, [](const SharedVariable& s) { return std::string(s.builtIn); });
}

void WriteIniFile(Program& p, const std::string& IniFile) {
    for (const SharedVariable& s : sharedVariables()) {
        if (s.stored != Stored::Window && s.stored != Stored::Settings) continue;
        std::string text = formatValue(s.kind, storedValue(p, s));
        WriteIniValue(p, std::string(s.section), std::string(s.name), text, IniFile);
        if (s.kind == VarKind::Text) writeVar(p.vars, s, Value(text));  // trimmed in place
    }
}

bool profileExists(Program& p) { return files::exists(path(p, "")); }

void writeBuiltInProfile(Program& p) {
    // Made whole in memory and put in place in one step, unless another copy
    // of the program made it meanwhile: a first start stopped at any moment
    // leaves all of the profile file or none of it.
    std::string text;
    for (const SharedVariable& s : sharedVariables())
        if (s.stored != Stored::Never) text = ini::withValue(text, s.section, s.name, s.builtIn);
    ini::createFile(path(p, ""), text);
}

}  // namespace brelk
