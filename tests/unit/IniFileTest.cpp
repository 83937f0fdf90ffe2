#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <QTemporaryDir>

#include "settings/IniFile.h"

using namespace brelk;
namespace fs = std::filesystem;

namespace {

// A fresh directory per test, and the bytes of the files in it.
struct IniDir : ::testing::Test {
    QTemporaryDir tmp;
    std::string dir = tmp.path().toStdString();
    void TearDown() override { fs::permissions(dir, fs::perms::owner_all, fs::perm_options::add); }
    std::string pathOf(const std::string& name) const { return dir + "/" + name; }
    std::string put(const std::string& name, const std::string& bytes) const {
        const std::string path = pathOf(name);
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    static std::string bytesOf(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    std::set<std::string> entries() const {
        std::set<std::string> names;
        for (const auto& e : fs::directory_iterator(dir)) names.insert(e.path().filename().string());
        return names;
    }
    static unsigned modeOf(const std::string& path) {
        struct stat st {};
        ::stat(path.c_str(), &st);
        return st.st_mode & 07777;
    }
};

using IniPath = IniDir;
using IniRead = IniDir;
using IniWrite = IniDir;
using IniWriteRefused = IniDir;

TEST_F(IniPath, EmptyNameIsTheProgramsProfileAndOthersAreTrimmedWithoutExtension) {
    EXPECT_EQ(ini::profilePath("/opt/b", "Brelk", ""), "/opt/b/Brelk.ini");
    EXPECT_EQ(ini::profilePath("/opt/b", "Brelk", " mine.set "), "/opt/b/mine.set");
    EXPECT_EQ(ini::profilePath("/opt/b", "Brelk", "\tmine\t"), "/opt/b/mine");
}

TEST_F(IniRead, FindsTheFirstMatchingSectionAndKey) {
    struct Case { const char* what; std::string file, section, key, expected; };
    const std::vector<Case> cases = {
        {"lone CR line ends", "[A]\rx=1\rk=2\r[B]\rk=3\r", "B", "k", "3"},
        {"blanks around names", "  [ A ]  \r\n \t k \t= \t v w \t\r\n", "A", "k", "v w"},
        {"comment skipped", "[A]\r\n;k=no\r\n  ; k=no\r\nk=yes\r\n", "A", "k", "yes"},
        {"first key counts", "[A]\r\nk=1\r\nK=2\r\n", "A", "k", "1"},
        {"first section counts", "[A]\r\nk=1\r\n[a]\r\nk=2\r\n", "a", "K", "1"},
        {"key only in a later duplicate section", "[A]\r\nx=1\r\n[a]\r\nk=2\r\n", "A", "k", ""},
        {"blanks inside quotes kept", "[A]\r\nk= \" x \" \r\n", "A", "k", " x "},
        {"unclosed bracket is no header", "[A]\r\n[B\r\nk=1\r\n", "A", "k", "1"},
        {"NUL byte is an ordinary byte", std::string("[A]\r\nk=a\0b\r\n", 12), "A", "k", std::string("a\0b", 3)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(ini::readValue(put("p.ini", c.file), c.section, c.key), c.expected);
    }
}

TEST_F(IniRead, LongValueIsCutTo254Characters) {
    // Letters of two and three bytes are counted whole and never split.
    std::string accents;
    for (int i = 0; i < 300; ++i) accents += i % 2 ? "\xC3\xA9" : "\xE2\x82\xAC";
    const std::string path = put("p.ini", "[A]\r\nk=" + accents + "\r\n");
    EXPECT_EQ(ini::readValue(path, "A", "k"), accents.substr(0, 127 * 5));
}

TEST_F(IniRead, MissingOrUnopenableFilesReadAsEmpty) {
    EXPECT_EQ(ini::readValue(pathOf("none.ini"), "A", "k"), "");
    ASSERT_EQ(::mkfifo(pathOf("pipe").c_str(), 0644), 0);
    EXPECT_EQ(ini::readValue(pathOf("pipe"), "A", "k"), "");  // must not wait for a writer
}

TEST_F(IniWrite, ChangesOnlyTheOneLineOrAddsOne) {
    struct Case { const char* what; std::string before, section, key, value, after; };
    const std::vector<Case> cases = {
        {"only the first key of the first section", "[S]\r\nk=1\r\nK=2\r\n[s]\r\nk=3\r\n", "s", "k", "9",
         "[S]\r\nk=9\r\nK=2\r\n[s]\r\nk=3\r\n"},
        {"foreign line ends kept", "; c\n[A]\nk=1\rother\n", "A", "k", "2", "; c\n[A]\nk=2\rother\n"},
        {"new key after the section's last key", "[A]\r\nx=1\r\ny=2\r\n\r\n; next\r\n[B]\r\nz=3\r\n", "A", "New", "v",
         "[A]\r\nx=1\r\ny=2\r\nNew=v\r\n\r\n; next\r\n[B]\r\nz=3\r\n"},
        {"new key in a section without keys", "[A]\r\n; none\r\n[B]\r\n", "a", "k", "v",
         "[A]\r\nk=v\r\n; none\r\n[B]\r\n"},
        {"new section after a lone CR", "[A]\rx=1\r", "B", "k", "v", "[A]\rx=1\r[B]\r\nk=v\r\n"},
        {"new section after an unended line", "[A]\r\nx=1", "B", "k", "v", "[A]\r\nx=1\r\n[B]\r\nk=v\r\n"},
        {"key before any section is not the section's", "k=1\r\n", "A", "k", "2", "k=1\r\n[A]\r\nk=2\r\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const std::string path = put("p.ini", c.before);
        EXPECT_TRUE(ini::writeValue(path, c.section, c.key, c.value));
        EXPECT_EQ(bytesOf(path), c.after);
    }
}

TEST_F(IniWrite, KeepsPermissionsAndLeavesNoTemporaryFile) {
    const std::string path = put("p.ini", "[A]\r\nk=1\r\n");
    fs::permissions(path, static_cast<fs::perms>(0606));
    ASSERT_TRUE(ini::writeValue(path, "A", "k", "2"));
    EXPECT_EQ(modeOf(path), 0606u);
    EXPECT_EQ(entries(), std::set<std::string>{"p.ini"});
}

TEST_F(IniWriteRefused, AReadOnlyFileOrDirectoryStaysAsItIs) {
    const std::string before = "[A]\r\nk=1\r\n";
    const std::string path = put("p.ini", before);
    fs::permissions(path, static_cast<fs::perms>(0444));
    EXPECT_FALSE(ini::writeValue(path, "A", "k", "2"));
    EXPECT_EQ(modeOf(path), 0444u);
    // A writable file in a read-only directory cannot be replaced either.
    fs::permissions(path, static_cast<fs::perms>(0644));
    fs::permissions(dir, static_cast<fs::perms>(0555));
    EXPECT_FALSE(ini::writeValue(path, "A", "k", "2"));
    EXPECT_FALSE(ini::writeValue(pathOf("new.ini"), "A", "k", "2"));
    fs::permissions(dir, fs::perms::owner_all, fs::perm_options::add);
    EXPECT_EQ(bytesOf(path), before);
    EXPECT_EQ(entries(), std::set<std::string>{"p.ini"});
}

TEST_F(IniWriteRefused, AMissingFolderEmptyKeyOrLineBreakChangeNothing) {
    EXPECT_FALSE(ini::writeValue(pathOf("sub/p.ini"), "A", "k", "1"));
    EXPECT_FALSE(fs::exists(pathOf("sub")));
    const std::string before = "[A]\r\nk=1\r\n";
    const std::string path = put("p.ini", before);
    EXPECT_FALSE(ini::writeValue(path, "A", "", "2"));
    EXPECT_FALSE(ini::writeValue(path, "A", "k", "2\r\n[B]"));
    EXPECT_FALSE(ini::writeValue(path, "A\r", "k", "2"));
    EXPECT_FALSE(ini::writeValue(path, "A", "k\nx", "2"));
    EXPECT_EQ(bytesOf(path), before);
}

}  // namespace
