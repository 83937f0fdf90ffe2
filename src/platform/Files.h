#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brelk::files {

// How reading a whole file ended.
enum class ReadStatus { Ok, Missing, NotAFile, TooBig, Failed };

// The largest map or profile file read: real ones hold a few kilobytes, the
// longest list of rows about 300. A bigger file is refused before it is read.
constexpr std::size_t kMaxFileBytes = std::size_t{1} << 20;

// The signature that some editors put before UTF-8 text; never part of it.
constexpr std::string_view kUtf8Signature = "\xEF\xBB\xBF";
// Its length when `bytes` begins with it, else 0.
std::size_t signatureLength(std::string_view bytes);

// The whole of a regular file into `bytes`. Only a regular file is read: a
// directory, a device or a named pipe is NotAFile at once, and opening
// without blocking keeps a pipe with no writer from holding the program up.
// Missing is a path that names nothing; TooBig a file of more than
// kMaxFileBytes; Failed any other open or read error.
ReadStatus readRegularFile(const std::string& path, std::string& bytes);

// A text file opened for reading by lines. A line ends at CR LF or at a lone
// CR; a lone LF is part of the line. The file is read whole when opened, and
// decoded as UTF-8 when it is valid UTF-8, else as Windows-1252, so that any
// byte sequence reads as text. A UTF-8 signature at its start is skipped.
class LineReader {
public:
    // Raises error 53 when the file is missing or is no regular file, 76 when
    // it cannot be opened or read or is too big.
    void open(const std::string& path);
    bool eof() const { return pos_ >= bytes_.size(); }
    // Raises error 62 past the end.
    std::string readLine();
    void close();

private:
    std::string bytes_;
    std::size_t pos_ = 0;
    bool open_ = false;
    bool utf8_ = true;
};

// Text of 8-bit bytes: kept when valid UTF-8, else decoded as Windows-1252.
bool isValidUtf8(const std::string& bytes);
std::string windows1252ToUtf8(const std::string& bytes);
// Bytes taken by the first `chars` characters of UTF-8 text (all of it when
// shorter); a byte that starts no valid sequence counts as one character.
std::size_t utf8PrefixBytes(std::string_view text, std::size_t chars);

// Directory listing by pattern, of normal files only (no folders, no hidden
// files), in the order of the file system the program was made for: by name,
// capitals and small letters alike.
class DirLister {
public:
    // First name matching `pattern` ("*.set") in `dir`, or "".
    std::string first(const std::string& dir, const std::string& pattern);
    // The next name, or "" when there is none left.
    std::string next();

private:
    std::vector<std::string> names_;
    std::size_t pos_ = 0;
};

// The file's name if a file exists at `path`, else "".
std::string dirByName(const std::string& path);
bool exists(const std::string& path);
// Deletes a file; raises error 53 when it does not exist.
void kill(const std::string& path);
// Writes bytes to a file, replacing it.
bool writeAll(const std::string& path, const std::string& bytes);
// The file name of a path, without its directory.
std::string fileTitle(const std::string& path);
// Joins a directory and a name with the platform's separator.
std::string join(const std::string& dir, const std::string& name);
// Whether `name` matches a pattern of "*" and "?" wildcards, ignoring case.
bool matchesPattern(const std::string& name, const std::string& pattern);

}  // namespace brelk::files
