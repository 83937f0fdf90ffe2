#pragma once

#include <string>
#include <string_view>

// Access to one value of a profile file: text lines of "[Section]" headers and
// "key=value" lines. Every call finds the file, does its one access and lets go
// of it: nothing is cached and no file stays open, so a write is seen by the
// next read of any process.
namespace brelk::ini {

// Path of a profile file: iniFile exactly "" -> dir + "/" + exeName + ".ini";
// otherwise dir + "/" + iniFile trimmed of blanks at both ends (no extension added;
// an iniFile of blanks only gives the directory itself, so reads give "" and writes fail).
std::string profilePath(const std::string& dir, const std::string& exeName, const std::string& iniFile);

// One value; "" when the file, section or key is missing or unreadable. Cut to 254 chars.
// Section and key names match ignoring ASCII case; the first matching section
// and the first matching key in it count. Quotes around the value are dropped.
std::string readValue(const std::string& path, std::string_view section, std::string_view key);

// One write; returns false when nothing could be written (callers ignore it).
// The value is trimmed of blanks. An existing key keeps its spelling and place,
// a new key goes after the section's last key, a new section at the end of the
// file; every other line stays byte for byte. A read-only file, a read-only or
// missing directory, a file too big to read, an empty key or a line break in
// any argument change nothing. The whole read-modify-replace holds the file's
// lock (".NAME.lock" beside it) against other copies of the program, and
// removes what killed writes of the file left behind. With `keepCopy`, the
// file as it was is kept first at copyPath(path).
bool writeValue(const std::string& path, std::string_view section, std::string_view key, std::string_view value,
                bool keepCopy = false);

// Where writeValue keeps a copy of a profile file: beside it, ".bak" added.
std::string copyPath(const std::string& path);

// The text of a profile file with the key set to the value, as writeValue
// would write it.
std::string withValue(std::string_view text, std::string_view section, std::string_view key,
                      std::string_view value);

// Puts `bytes` at `path` as replaceFile does, under the file's lock, and only
// when no file stands there: false, and nothing changed, when one does.
bool createFile(const std::string& path, std::string_view bytes);

// Replaces the file at `path` by `bytes` so that, whatever happens meanwhile,
// the path holds either the old file or the new one whole: the bytes go to a
// temporary file in the same directory (".NAME.tmp-PID-N"), are flushed to disk, and that file is
// renamed over the old one, keeping its permissions. False, with the temporary
// file removed, when any step fails.
bool replaceFile(const std::string& path, std::string_view bytes);

}  // namespace brelk::ini
