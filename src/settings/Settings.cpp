#include "settings/Settings.h"

#include <algorithm>
#include <cctype>

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "settings/IniFile.h"
#include "state/ModVars.h"
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
    ini::writeValue(path(p, IniFile), Section, Key, Value);
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

std::string formatValue(KeyKind kind, double value) {
    switch (kind) {
    case KeyKind::Flag: return value != 0 ? "True" : "False";
    case KeyKind::Position: return num::plainText(num::roundHalfEven(value));
    default: return num::plainText(value);
    }
}

namespace {

// Reads the settings keys from `source`; false at the first value that
// cannot be read, the keys before it having taken their new values.
template <typename Source>
bool readSettings(Program& p, Source source) {
    const auto& keys = profileKeys();
    for (int i = kFirstSettingKey; i <= kLastSettingKey; ++i) {
        const ProfileKey& k = keys[i];
        const std::string text = source(k);
        std::optional<Value> value;
        switch (k.kind) {
        case KeyKind::Flag:
            if (auto f = readFlag(text)) value = Value(*f);
            break;
        case KeyKind::Integer:
            if (auto n = readInteger(text)) value = Value(*n);
            break;
        case KeyKind::Colour:
            value = Value(readColour(text));
            break;
        case KeyKind::Position:
            value = Value(readPosition(text));
            break;
        case KeyKind::Text:
            value = Value(text);
            break;
        }
        if (!value) return false;
        writeVar(p.vars, k.field, *value);
    }
    return true;
}

}  // namespace

void ReadIniFile(Program& p, const std::string& IniFile) {
    const bool whole = readSettings(p, [&](const ProfileKey& k) {
        return ReadIniValue(p, std::string(k.section), std::string(k.key), IniFile);
    });
    if (!whole) p.MsgBox("An error occured when reading file (wrong file format ?)", msgbox::Critical, "WTF ?!");
}

void applyBuiltInSettings(Program& p) {
    readSettings(p, [](const ProfileKey& k) { return std::string(k.builtIn); });
}

void WriteIniFile(Program& p, const std::string& IniFile) {
    const auto& keys = profileKeys();
    for (int i = 0; i <= kLastWrittenKey; ++i) {
        const ProfileKey& k = keys[i];
        std::string text;
        if (k.field == "PosX") text = formatValue(k.kind, p.frmMain.self().number(Prop::Left));
        else if (k.field == "PosY") text = formatValue(k.kind, p.frmMain.self().number(Prop::Top));
        else if (k.kind == KeyKind::Text) text = readVar(p.vars, k.field).text();
        else text = formatValue(k.kind, readVar(p.vars, k.field).number());
        WriteIniValue(p, std::string(k.section), std::string(k.key), text, IniFile);
        if (k.kind == KeyKind::Text) writeVar(p.vars, k.field, Value(text));  // trimmed in place
    }
}

bool profileExists(Program& p) { return files::exists(path(p, "")); }

void writeBuiltInProfile(Program& p) {
    for (const ProfileKey& k : profileKeys()) {
        std::string text(k.builtIn);
        WriteIniValue(p, std::string(k.section), std::string(k.key), text, "");
    }
}

}  // namespace brelk
