#include "platform/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace fs = std::filesystem;

namespace brelk::files {

namespace {

// Closes a descriptor on every way out, an allocation failure included.
class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    int get() const { return fd_; }

private:
    int fd_;
};

}  // namespace

std::size_t signatureLength(std::string_view bytes) {
    return bytes.substr(0, kUtf8Signature.size()) == kUtf8Signature ? kUtf8Signature.size() : 0;
}

ReadStatus readRegularFile(const std::string& path, std::string& bytes) {
    bytes.clear();
    const Descriptor fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (fd.get() < 0) return errno == ENOENT || errno == ENOTDIR ? ReadStatus::Missing : ReadStatus::Failed;
    struct stat st {};
    if (::fstat(fd.get(), &st) != 0) return ReadStatus::Failed;
    if (!S_ISREG(st.st_mode)) return ReadStatus::NotAFile;
    if (st.st_size > static_cast<off_t>(kMaxFileBytes)) return ReadStatus::TooBig;
    char buf[65536];
    for (;;) {
        const ssize_t n = ::read(fd.get(), buf, sizeof buf);
        if (n > 0) bytes.append(buf, static_cast<std::size_t>(n));
        else if (n == 0) return ReadStatus::Ok;
        else if (errno != EINTR) return ReadStatus::Failed;
        if (bytes.size() > kMaxFileBytes) {  // it grew while being read
            bytes.clear();
            return ReadStatus::TooBig;
        }
    }
}

void LineReader::open(const std::string& path) {
    if (open_) raise(err::FileAlreadyOpen);
    std::string bytes;
    switch (readRegularFile(path, bytes)) {
    case ReadStatus::Ok: break;
    case ReadStatus::Missing:
    case ReadStatus::NotAFile: raise(err::FileNotFound);
    case ReadStatus::TooBig:
    case ReadStatus::Failed: raise(err::PathNotFound, "Path/File access error");
    }
    bytes_ = std::move(bytes);
    pos_ = signatureLength(bytes_);
    open_ = true;
    utf8_ = isValidUtf8(bytes_);
}

std::string LineReader::readLine() {
    if (!open_) raise(err::BadFileName);
    if (eof()) raise(err::InputPastEnd);
    std::size_t end = bytes_.find('\r', pos_);
    if (end == std::string::npos) end = bytes_.size();
    std::string line = bytes_.substr(pos_, end - pos_);
    pos_ = end;
    if (pos_ < bytes_.size()) {
        ++pos_;  // the CR
        if (pos_ < bytes_.size() && bytes_[pos_] == '\n') ++pos_;
    }
    return utf8_ ? line : windows1252ToUtf8(line);
}

void LineReader::close() {
    bytes_.clear();
    bytes_.shrink_to_fit();
    pos_ = 0;
    open_ = false;
}

bool isValidUtf8(const std::string& bytes) {
    const auto* s = reinterpret_cast<const unsigned char*>(bytes.data());
    const std::size_t n = bytes.size();
    std::size_t i = 0;
    while (i < n) {
        const unsigned char c = s[i];
        if (c < 0x80) { ++i; continue; }
        int extra;
        std::uint32_t cp;
        if (c >= 0xC2 && c <= 0xDF) { extra = 1; cp = c & 0x1F; }
        else if (c >= 0xE0 && c <= 0xEF) { extra = 2; cp = c & 0x0F; }
        else if (c >= 0xF0 && c <= 0xF4) { extra = 3; cp = c & 0x07; }
        else return false;
        if (i + static_cast<std::size_t>(extra) >= n) return false;
        for (int k = 1; k <= extra; ++k) {
            const unsigned char cc = s[i + k];
            if ((cc & 0xC0) != 0x80) return false;
            cp = (cp << 6) | (cc & 0x3F);
        }
        // No overlong forms, no surrogates, nothing past U+10FFFF.
        if ((extra == 2 && cp < 0x800) || (extra == 3 && (cp < 0x10000 || cp > 0x10FFFF)) ||
            (cp >= 0xD800 && cp <= 0xDFFF))
            return false;
        i += extra + 1;
    }
    return true;
}

std::string windows1252ToUtf8(const std::string& bytes) {
    // 0x80..0x9F differ from Latin-1; 0 marks the five unassigned bytes,
    // which are kept as the control characters of the same value.
    static constexpr std::array<char16_t, 32> k80 = {
        0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013,
        0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 4);
    for (unsigned char c : bytes) {
        std::uint32_t cp = c;
        if (c >= 0x80 && c <= 0x9F && k80[c - 0x80] != 0) cp = k80[c - 0x80];
        if (cp < 0x80) {
            out.push_back(static_cast<char>(cp));
        } else if (cp < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        }
    }
    return out;
}

std::size_t utf8PrefixBytes(std::string_view text, std::size_t chars) {
    const auto continuation = [&](std::size_t i) {
        return i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    };
    std::size_t bytes = 0;
    for (std::size_t n = 0; n < chars && bytes < text.size(); ++n) {
        const auto lead = static_cast<unsigned char>(text[bytes++]);
        const int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
        for (int k = 0; k < extra && continuation(bytes); ++k) ++bytes;
    }
    return bytes;
}

bool matchesPattern(const std::string& name, const std::string& pattern) {
    // Iterative wildcard match with backtracking to the last "*".
    std::size_t n = 0, p = 0, star = std::string::npos, mark = 0;
    auto same = [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    };
    while (n < name.size()) {
        // A star in the pattern is a wildcard, also against a star in the name.
        if (p < pattern.size() && pattern[p] == '*') { star = p++; mark = n; }
        else if (p < pattern.size() && (pattern[p] == '?' || same(pattern[p], name[n]))) { ++n; ++p; }
        else if (star != std::string::npos) { p = star + 1; n = ++mark; }
        else return false;
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

std::string DirLister::first(const std::string& dir, const std::string& pattern) {
    names_.clear();
    pos_ = 0;
    std::error_code ec;
    for (fs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
        if (!it->is_regular_file(ec)) continue;
        const std::string name = it->path().filename().string();
        // Normal files only: a name starting with a dot is a hidden file.
        if (name.front() == '.') continue;
        if (matchesPattern(name, pattern)) names_.push_back(name);
    }
    // In the order of the file system the program was made for: by name,
    // capitals and small letters alike.
    std::sort(names_.begin(), names_.end(), [](const std::string& a, const std::string& b) {
        const std::string ua = num::upper(a), ub = num::upper(b);
        return ua != ub ? ua < ub : a < b;
    });
    return next();
}

std::string DirLister::next() {
    return pos_ < names_.size() ? names_[pos_++] : std::string();
}

std::string dirByName(const std::string& path) {
    return exists(path) ? fileTitle(path) : std::string();
}

bool exists(const std::string& path) {
    std::error_code ec;
    return fs::is_regular_file(path, ec);
}

void kill(const std::string& path) {
    std::error_code ec;
    if (!exists(path)) raise(err::FileNotFound);
    if (!fs::remove(path, ec) || ec) raise(err::PathNotFound, "Path/File access error");
}

bool writeAll(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out);
}

std::string fileTitle(const std::string& path) { return fs::path(path).filename().string(); }

std::string join(const std::string& dir, const std::string& name) {
    return (fs::path(dir) / name).string();
}

}  // namespace brelk::files
