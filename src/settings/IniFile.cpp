#include "settings/IniFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <new>
#include <optional>
#include <vector>

#include <QLockFile>
#include <QString>

#include "platform/Files.h"

namespace brelk::ini {

namespace {

namespace fs = std::filesystem;

// A value reads back as at most this many characters, as from a buffer of
// 255 with room for the terminating NUL.
constexpr std::size_t kMaxValueLength = 254;
constexpr std::string_view kLineEnd = "\r\n";
// Name attempts for a temporary file before giving up.
constexpr int kTempAttempts = 100;
// How long a write waits for another copy of the program to finish its write
// of the same file before it gives up (a write takes milliseconds), in steps;
// and the age from which a lock file that names no holder counts as left by a
// killed writer. A lock whose holder still runs is never taken from it.
constexpr int kLockWaitMs = 5000;
constexpr int kLockStepMs = 250;
constexpr int kStaleLockMs = 2000;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view trimBlanks(std::string_view s) {
    while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
    return s;
}

char asciiLower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (asciiLower(a[i]) != asciiLower(b[i])) return false;
    return true;
}

bool hasLineBreak(std::string_view s) { return s.find_first_of("\r\n") != std::string_view::npos; }

// One line of the file: its text is [begin, end), its line end [end, next).
struct Line {
    std::size_t begin;
    std::size_t end;
    std::size_t next;
};

// Lines end at CR LF, LF or a lone CR; the last line may have no end. A UTF-8
// signature before the first line belongs to no line.
std::vector<Line> splitLines(std::string_view text) {
    std::vector<Line> lines;
    std::size_t begin = files::signatureLength(text);
    while (begin < text.size()) {
        std::size_t end = text.find_first_of("\r\n", begin);
        if (end == std::string_view::npos) {
            lines.push_back({begin, text.size(), text.size()});
            break;
        }
        std::size_t next = end + 1;
        if (text[end] == '\r' && next < text.size() && text[next] == '\n') ++next;
        lines.push_back({begin, end, next});
        begin = next;
    }
    return lines;
}

enum class LineKind { Other, Section, Key };

struct Parsed {
    LineKind kind = LineKind::Other;
    std::string_view name;   // section or key name, trimmed
    std::string_view value;  // key value, trimmed
};

// What a line is. Whether a key line lies within a section is the caller's
// concern; comments, blank lines and anything else are Other.
Parsed parseLine(std::string_view line) {
    const std::string_view t = trimBlanks(line);
    if (t.empty() || t.front() == ';') return {};
    if (t.size() >= 2 && t.front() == '[' && t.back() == ']')
        return {LineKind::Section, trimBlanks(t.substr(1, t.size() - 2)), {}};
    const std::size_t eq = t.find('=');
    if (eq == std::string_view::npos) return {};
    const std::string_view name = trimBlanks(t.substr(0, eq));
    if (name.empty()) return {};
    return {LineKind::Key, name, trimBlanks(t.substr(eq + 1))};
}

// Where a key stands within the first section of its name.
struct Location {
    std::optional<std::size_t> header;   // the section's header line
    std::optional<std::size_t> key;      // its first line of the key
    std::optional<std::size_t> lastKey;  // its last key line of any name
};

Location locate(std::string_view text, const std::vector<Line>& lines, std::string_view section,
                std::string_view key) {
    Location at;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Parsed p = parseLine(text.substr(lines[i].begin, lines[i].end - lines[i].begin));
        if (p.kind == LineKind::Section) {
            if (at.header) break;  // the first matching section has ended
            if (sameName(p.name, section)) at.header = i;
        } else if (p.kind == LineKind::Key && at.header) {
            at.lastKey = i;
            if (!at.key && sameName(p.name, key)) at.key = i;
        }
    }
    return at;
}

std::string_view lineText(std::string_view text, const Line& line) {
    return text.substr(line.begin, line.end - line.begin);
}

bool readWhole(const std::string& path, std::string& out) {
    return files::readRegularFile(path, out) == files::ReadStatus::Ok;
}

bool writeWhole(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

// The superuser passes every access() check, so a file or directory with no
// write bit at all counts as read-only for everyone.
bool writable(const std::string& path, const struct stat& st) {
    if ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) return false;
    return ::access(path.c_str(), W_OK) == 0;
}

// A name for a temporary file beside `name`: the process and an attempt
// number. O_EXCL makes it ours alone, even against another thread or a file
// left behind by a writer that was killed.
std::string tempName(const fs::path& dir, const std::string& name, int attempt) {
    return (dir / ("." + name + ".tmp-" + std::to_string(::getpid()) + "-" + std::to_string(attempt))).string();
}

// The directory and the name of a file's path.
std::pair<fs::path, std::string> placeOf(const std::string& path) {
    const fs::path p(path);
    return {p.has_parent_path() ? p.parent_path() : fs::path("."), p.filename().string()};
}

// The lock of one profile file (QLockFile), held for one whole
// read-modify-replace so that two copies of the program never write from the
// same old text. Qt takes over a lock whose writer was killed, under a helper
// lock (".rmlock"); a writer killed while doing so leaves that one behind,
// empty, for Qt to honour half a minute: such a helper that no process holds
// goes. Once the lock is ours, so do the temporary files of killed writes of
// this file and of its copy: a write in progress holds the lock, so none of
// them is in use.
class WriteLock {
public:
    explicit WriteLock(const std::string& path) : path_(path), lock_(lockFile(path)) {
        lock_.setStaleLockTime(kStaleLockMs);
        for (int waited = 0; waited < kLockWaitMs; waited += kLockStepMs) {
            held_ = lock_.tryLock(kLockStepMs);
            if (held_ || lock_.error() != QLockFile::LockFailedError) break;
            removeLeftovers(false);
        }
        if (held_) removeLeftovers(true);
    }
    bool held() const { return held_; }

private:
    static QString lockFile(const std::string& path) {
        const auto [dir, name] = placeOf(path);
        return QString::fromStdString((dir / ("." + name + ".lock")).string());
    }
    void removeLeftovers(bool locked) const {
        const auto [dir, name] = placeOf(path_);
        const std::string helpers = "." + name + ".lock.rmlock";
        const std::string temps[] = {"." + name + ".tmp-", "." + copyPath(name) + ".tmp-"};
        std::error_code ec;
        for (fs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
            const std::string entry = it->path().filename().string();
            std::error_code ignored;
            if (entry.starts_with(helpers)) removeUnheld(it->path());
            else if (locked && (entry.starts_with(temps[0]) || entry.starts_with(temps[1]))) fs::remove(it->path(), ignored);
        }
    }
    // Qt's lock holders hold the file's native lock too.
    static void removeUnheld(const fs::path& file) {
        const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd < 0) return;
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0) ::unlink(file.c_str());
        ::close(fd);
    }

    std::string path_;

    QLockFile lock_;
    bool held_ = false;
};

}  // namespace

// The text with the key set to the value, every other byte kept.
std::string withValue(std::string_view text, std::string_view section, std::string_view key,
                      std::string_view value) {
    const std::vector<Line> lines = splitLines(text);
    const Location at = locate(text, lines, section, key);
    std::string out;
    out.reserve(text.size() + section.size() + key.size() + value.size() + 8);

    if (at.key) {
        // In place, in the file's spelling of the key, keeping the line's end.
        const Line& line = lines[*at.key];
        const std::string_view spelling = parseLine(lineText(text, line)).name;
        out.append(text.substr(0, line.begin));
        out.append(spelling).append("=").append(value);
        out.append(text.substr(line.end));
    } else if (at.header) {
        // After the section's last key, or right below its header.
        const Line& anchor = lines[at.lastKey.value_or(*at.header)];
        out.append(text.substr(0, anchor.next));
        if (anchor.next == anchor.end) out.append(kLineEnd);  // the file's last line had no end
        out.append(key).append("=").append(value).append(kLineEnd);
        out.append(text.substr(anchor.next));
    } else {
        out.append(text);
        if (text.size() > files::signatureLength(text) && text.back() != '\n' && text.back() != '\r')
            out.append(kLineEnd);
        out.append("[").append(section).append("]").append(kLineEnd);
        out.append(key).append("=").append(value).append(kLineEnd);
    }
    return out;
}

std::string copyPath(const std::string& path) { return path + ".bak"; }

std::string profilePath(const std::string& dir, const std::string& exeName, const std::string& iniFile) {
    if (iniFile.empty()) return dir + "/" + exeName + ".ini";
    return dir + "/" + std::string(trimBlanks(iniFile));
}

std::string readValue(const std::string& path, std::string_view section, std::string_view key) try {
    if (key.empty()) return {};
    std::string text;
    if (!readWhole(path, text)) return {};
    const std::vector<Line> lines = splitLines(text);
    const Location at = locate(text, lines, section, key);
    if (!at.key) return {};
    std::string_view value = parseLine(lineText(text, lines[*at.key])).value;
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
        value = value.substr(1, value.size() - 2);
    return std::string(value.substr(0, files::utf8PrefixBytes(value, kMaxValueLength)));
} catch (const std::bad_alloc&) {
    return {};  // a file too big for memory reads as an empty one
}

bool writeValue(const std::string& path, std::string_view section, std::string_view key, std::string_view value,
                bool keepCopy) try {
    // A line break would split the line and damage the file's structure.
    if (key.empty() || hasLineBreak(section) || hasLineBreak(key) || hasLineBreak(value)) return false;
    value = trimBlanks(value);

    // Write through a link to the file it names, so the link stays a link.
    std::string target = path;
    std::error_code ec;
    if (fs::is_symlink(path, ec)) {
        const fs::path real = fs::weakly_canonical(path, ec);
        if (ec) return false;
        target = real.string();
    }
    const WriteLock lock(target);
    if (!lock.held()) return false;
    std::string old;
    struct stat st {};
    if (::stat(target.c_str(), &st) == 0) {
        if (!S_ISREG(st.st_mode) || !writable(target, st)) return false;
        if (!readWhole(target, old)) return false;
        // The file as it was before this write; should the copy fail, the
        // write goes on as it would without one.
        if (keepCopy) replaceFile(copyPath(target), old);
    } else if (errno != ENOENT) {
        return false;
    }
    return replaceFile(target, withValue(old, section, key, value));
} catch (const std::bad_alloc&) {
    return false;  // a file too big for memory is left as it is
}

bool createFile(const std::string& path, std::string_view bytes) {
    const WriteLock lock(path);
    if (!lock.held()) return false;
    struct stat st {};
    if (::lstat(path.c_str(), &st) == 0 || errno != ENOENT) return false;  // another copy made it
    return replaceFile(path, bytes);
}

bool replaceFile(const std::string& path, std::string_view bytes) {
    const auto [dir, name] = placeOf(path);
    if (name.empty()) return false;

    // Never create a directory, and leave a read-only one alone.
    struct stat dirSt {};
    if (::stat(dir.c_str(), &dirSt) != 0 || !S_ISDIR(dirSt.st_mode) || !writable(dir.string(), dirSt)) return false;

    struct stat oldSt {};
    const bool existed = ::stat(path.c_str(), &oldSt) == 0;

    std::string temp;
    int fd = -1;
    for (int attempt = 0; attempt < kTempAttempts && fd < 0; ++attempt) {
        temp = tempName(dir, name, attempt);
        fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd < 0 && errno != EEXIST) return false;
    }
    if (fd < 0) return false;

    bool ok = true;
    if (existed) {
        // Keep the old file's owner where we may, then its permission bits
        // (in this order, as a change of owner can clear set-id bits).
        if ((oldSt.st_uid != ::geteuid() || oldSt.st_gid != ::getegid()) &&
            ::fchown(fd, oldSt.st_uid, oldSt.st_gid) != 0) {
            // Only the superuser may give a file away; ours then it stays.
        }
        ok = ::fchmod(fd, oldSt.st_mode & 07777) == 0;
    }
    ok = ok && writeWhole(fd, bytes) && ::fsync(fd) == 0;
    ok = (::close(fd) == 0) && ok;
    ok = ok && ::rename(temp.c_str(), path.c_str()) == 0;
    if (!ok) {
        ::unlink(temp.c_str());
        return false;
    }
    // Make the rename itself durable; the new file is in place either way.
    const int dirFd = ::open(dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dirFd >= 0) {
        ::fsync(dirFd);
        ::close(dirFd);
    }
    return true;
}

}  // namespace brelk::ini
