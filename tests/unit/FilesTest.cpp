#include <gtest/gtest.h>

#include <tuple>
#include <string>
#include <vector>

#include "ScriptedProgram.h"

using namespace brelk;

namespace {

struct TempDir : ::testing::Test, doubles::ScriptedServices {
    std::vector<std::string> lines(const std::string& bytes) {
        files::LineReader r;
        r.open(put("f.txt", bytes));
        std::vector<std::string> out;
        while (!r.eof()) out.push_back(r.readLine());
        r.close();
        return out;
    }
};

using Lines = std::vector<std::string>;

TEST_F(TempDir, LinesEndAtCrLfOrALoneCrButNeverAtALoneLf) {
    EXPECT_EQ(lines("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(lines("a\nb\nc"), (Lines{"a\nb\nc"}));
    EXPECT_EQ(lines("a\r\n\r\nb"), (Lines{"a", "", "b"}));
    EXPECT_EQ(lines(""), (Lines{}));
}

TEST_F(TempDir, ValidUtf8IsKeptAndOtherBytesReadAsWindows1252) {
    EXPECT_EQ(lines("Caf\xC3\xA9\r\n"), (Lines{"Caf\xC3\xA9"}));
    EXPECT_EQ(lines("Caf\xE9 \x80\x81\r\n"), (Lines{"Caf\xC3\xA9 \xE2\x82\xAC\xC2\x81"}));
    EXPECT_EQ(lines(std::string("nul\0byte", 8)), (Lines{std::string("nul\0byte", 8)}));
    // Overlong, surrogate, cut short, past U+10FFFF and a stray continuation byte are no UTF-8.
    EXPECT_TRUE(files::isValidUtf8("plain \xE2\x82\xAC \xF0\x9F\x98\x80"));
    for (const char* bad : {"\xC0\xAF", "\xED\xA0\x80", "\xE2\x82", "\xF4\x90\x80\x80", "\x80ok"})
        EXPECT_FALSE(files::isValidUtf8(bad)) << bad;
}

TEST(Wildcards, MatchAnyRunOrOneCharacterIgnoringCase) {
    for (const auto& [name, pattern, match] : std::initializer_list<std::tuple<const char*, const char*, bool>>{
             {"Aerowalk.TXT", "*.txt", true}, {"a.txt.old", "*.txt", false}, {"ab", "a?", true}, {"abc", "a?", false},
             {"*x.set", "*.set", true}, {"a*b", "a*", true}, {"**", "*", true}})
        EXPECT_EQ(files::matchesPattern(name, pattern), match) << name << " " << pattern;
}

}  // namespace
