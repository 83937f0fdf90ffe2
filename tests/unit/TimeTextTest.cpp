#include <gtest/gtest.h>

#include <string>

#include "platform/Errors.h"
#include "state/ModVars.h"
#include "state/TimeText.h"

using namespace brelk;

namespace {

TEST(TimeText, MinutesAndSecondesAreInverseOverTheWholeRange) {
    struct Case { int seconds; const char* text; };
    for (const Case c : {Case{0, "00:00"}, Case{90, "01:30"}, Case{6000, "100:00"}, Case{32767, "546:07"},
                         Case{-20, "-00:20"}, Case{-90, "-01:30"}, Case{-32768, "-546:08"}}) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Minutes(static_cast<std::int16_t>(c.seconds)), c.text);
        EXPECT_EQ(Secondes(c.text), c.seconds);
    }
}

TEST(TimeText, SecondesReadsMinutesLenientlyAndSecondsStrictly) {
    EXPECT_EQ(Secondes("5:7"), 307);
    EXPECT_EQ(Secondes("x:30"), 30);
    for (const char* text : {"20", "20:", "20:soon", "2:30:15"}) {  // only the first colon divides
        SCOPED_TRACE(text);
        EXPECT_THROW(Secondes(text), RuntimeError);
    }
}

TEST(SharedVariables, AreReachableByNameWithTheirKinds) {
    ModVars v;
    writeVar(v, "MatchState", Value("going"));
    writeVar(v, "OnTop", Value("-1"));
    EXPECT_EQ(v.MatchState, "going");
    EXPECT_EQ(v.OnTop, -1);
    writeVar(v, "LastSeconds", Value(10));
    EXPECT_EQ(readVar(v, "LastSeconds").number(), 10);
    EXPECT_THROW(writeVar(v, "LastSeconds", Value(40000)), RuntimeError);
    EXPECT_THROW(readVar(v, "NoSuchVariable"), RuntimeError);
}

}  // namespace
