#pragma once

#include <optional>
#include <string>

#include "state/ModVars.h"

namespace brelk {

class Program;

// One value of a profile file; `IniFile` "" is the program's own profile
// file, anything else a file name beside the executable.
std::string ReadIniValue(Program& p, const std::string& Section, const std::string& Key,
                         const std::string& IniFile);
// Writes one value, trimming `Value` in the caller's variable. A failed write
// changes nothing and says nothing.
void WriteIniValue(Program& p, const std::string& Section, const std::string& Key, std::string& Value,
                   const std::string& IniFile);

// Reads the option and colour keys into the live settings, in table order,
// stopping with one message at the first value that cannot be read.
void ReadIniFile(Program& p, const std::string& IniFile);
// Writes the window position, the stay-on-top flag and every setting.
void WriteIniFile(Program& p, const std::string& IniFile);

// Conversions of one profile value by kind; none when it cannot be read.
std::optional<double> readFlag(const std::string& text);
std::optional<double> readInteger(const std::string& text);
double readColour(const std::string& text);
double readPosition(const std::string& text);
// A value as its kind reads it from a profile file; none when it cannot be read.
std::optional<Value> readValue(VarKind kind, const std::string& text);
// The text a value of this kind is written as.
std::string formatValue(VarKind kind, const Value& value);

// The program's profile file, with every key at its built-in value, for a
// first start.
void writeBuiltInProfile(Program& p);
bool profileExists(Program& p);
// Puts the built-in option and colour values into the live settings, for a
// first start whose profile file could not be created.
void applyBuiltInSettings(Program& p);

}  // namespace brelk
