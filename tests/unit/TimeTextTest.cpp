#include <gtest/gtest.h>

#include <string>

#include "platform/Errors.h"
#include "state/ModVars.h"
#include "state/TimeText.h"

using namespace brelk;

namespace {

struct TimeCase {
    const char* name;
    int seconds;
    const char* text;
};

class TimeText : public ::testing::TestWithParam<TimeCase> {};

TEST_P(TimeText, MinutesAndSecondesAreInverse) {
    const auto& c = GetParam();
    EXPECT_EQ(Minutes(static_cast<std::int16_t>(c.seconds)), c.text);
    EXPECT_EQ(Secondes(c.text), c.seconds);
}

INSTANTIATE_TEST_SUITE_P(
    Readings, TimeText,
    ::testing::Values(TimeCase{"zero", 0, "00:00"}, TimeCase{"one_second", 1, "00:01"},
                      TimeCase{"ninety", 90, "01:30"}, TimeCase{"twenty_minutes", 1200, "20:00"},
                      TimeCase{"three_digit_minutes", 6000, "100:00"},
                      TimeCase{"largest", 32767, "546:07"}, TimeCase{"minus_twenty", -20, "-00:20"},
                      TimeCase{"minus_minute", -60, "-01:00"}, TimeCase{"minus_ninety", -90, "-01:30"},
                      TimeCase{"smallest", -32768, "-546:08"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Secondes, MinutesAreReadLenientlyAndSecondsStrictly) {
    EXPECT_EQ(Secondes("5:7"), 307);
    EXPECT_EQ(Secondes(" 12:30"), 750);
    EXPECT_EQ(Secondes("x:30"), 30);
}

TEST(Secondes, ATextThatIsNoTimeIsAnError) {
    EXPECT_THROW(Secondes("20"), RuntimeError);
    EXPECT_THROW(Secondes("20:"), RuntimeError);
    EXPECT_THROW(Secondes("20:soon"), RuntimeError);
    EXPECT_THROW(Secondes("2:30:15"), RuntimeError);  // only the first colon divides
}

TEST(SharedVariables, AreReachableByNameWithTheirKinds) {
    ModVars v;
    writeVar(v, "MatchState", Value("going"));
    writeVar(v, "LastSeconds", Value(10));
    writeVar(v, "ListColor1", Value(0x00FFFFFF));
    writeVar(v, "OnTop", Value("-1"));
    EXPECT_EQ(v.MatchState, "going");
    EXPECT_EQ(v.LastSeconds, 10);
    EXPECT_EQ(v.ListColor1, 0x00FFFFFF);
    EXPECT_EQ(v.OnTop, -1);
    EXPECT_EQ(readVar(v, "LastSeconds").number(), 10);
    EXPECT_THROW(writeVar(v, "LastSeconds", Value(40000)), RuntimeError);
    EXPECT_THROW(readVar(v, "NoSuchVariable"), RuntimeError);
}

}  // namespace
