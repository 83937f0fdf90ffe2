// The numbers-and-text conversions: one row per edge a plausible fault gets wrong.
#include "ErrorOf.h"
#include "platform/Numbers.h"
#include "state/TimeText.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>

namespace {

using namespace brelk;
using namespace brelk::num;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Inf = std::numeric_limits<double>::infinity();
constexpr int Ok = doubles::kNoError;
using doubles::errorOf;

TEST(Numbers, LeadingValueReadsTheNumberAtTheStartAndZeroWhenThereIsNone) {
    struct Row { const char* name; const char* text; double expected; };
    const Row rows[] = {
        {"empty", "", 0},
        {"sign then blank", "- 5", 0},
        {"digits then letters", "255abc", 255},
        {"blanks and tabs, negative decimal", "  \t-7.6abc", -7.6},
        {"exponent then letter", "1e3x", 1000},
        {"negative exponent", "25e-1", 2.5},
        {"exponent sign without digits", "7e+x", 7},
        {"huge is the largest double", "1e400", DBL_MAX},
        {"exponent digits beyond any integer", "1e99999999999999999999", DBL_MAX},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_DOUBLE_EQ(leadingValue(r.text), r.expected);
    }
    EXPECT_FALSE(std::signbit(leadingValue("-0")));
}

TEST(Numbers, StrictValueTakesOneNumberAndNothingElse) {
    struct Row { const char* name; const char* text; double expected; int error; };
    const Row rows[] = {
        {"blanks around", "  12  ", 12, Ok},
        {"negative fraction only", "-.5", -0.5, Ok},
        {"signed exponent", "2.5E-1", 0.25, Ok},
        {"largest double", "1.7976931348623157e308", DBL_MAX, Ok},
        {"underflow is zero", "1e-400", 0, Ok},
        {"empty", "", 0, err::TypeMismatch},
        {"trailing letters", "12abc", 0, err::TypeMismatch},
        {"sign and point", "+.", 0, err::TypeMismatch},
        {"sign then blank", "- 1", 0, err::TypeMismatch},
        {"exponent without digits", "1e+", 0, err::TypeMismatch},
        {"too large", "1e400", 0, err::Overflow},
        {"just above the largest double", "1.7976931348623159e308", 0, err::Overflow},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(isStrictNumber(r.text), r.error == Ok);
        double got = 0;
        EXPECT_EQ(errorOf([&] { got = strictValue(r.text); }), r.error);
        if (r.error == Ok) { EXPECT_DOUBLE_EQ(got, r.expected); }
    }
}

TEST(Numbers, RoundHalfEvenSendsHalvesToTheEvenNeighbourAndNeverGivesMinusZero) {
    struct Row { const char* name; double value; double expected; };
    const Row rows[] = {
        {"half down to zero", 0.5, 0},
        {"two and a half down", 2.5, 2},
        {"negative two and a half", -2.5, -2},
        {"just below half", 0.49999999999999994, 0},
        {"largest odd half a double holds", 4503599627370495.5, 4503599627370496.0},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const double got = roundHalfEven(r.value);
        EXPECT_EQ(got, r.expected);
        EXPECT_FALSE(got == 0 && std::signbit(got)) << "negative zero";
    }
    EXPECT_TRUE(std::isnan(roundHalfEven(NaN)));
    EXPECT_EQ(roundHalfEven(Inf), Inf);
}

TEST(Numbers, IntegerConversionsRoundHalfToEvenAndOverflowPastTheirRange) {
    struct Row { const char* name; int bits; double value; std::int64_t expected; int error; };
    const Row rows[] = {
        {"16: half below the largest is even", 16, 32766.5, 32766, Ok},
        {"16: half above the largest", 16, 32767.5, 0, err::Overflow},
        {"16: half below the smallest is even", 16, -32768.5, -32768, Ok},
        {"16: just past the half below the smallest", 16, -32768.6, 0, err::Overflow},
        {"16: minus infinity", 16, -Inf, 0, err::Overflow},
        {"32: half below the largest is even", 32, 2147483646.5, 2147483646, Ok},
        {"32: half above the largest", 32, 2147483647.5, 0, err::Overflow},
        {"32: half below the smallest is even", 32, -2147483648.5, -2147483648LL, Ok},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        std::int64_t got = 0;
        EXPECT_EQ(errorOf([&] { got = r.bits == 16 ? toInt16(r.value) : toInt32(r.value); }), r.error);
        if (r.error == Ok) { EXPECT_EQ(got, r.expected); }
    }
}

TEST(Numbers, CheckedArithmeticOverflowsInsteadOfWrapping) {
    using Op = std::function<std::int64_t(std::int32_t, std::int32_t)>;
    const auto s16 = [](std::int32_t v) { return static_cast<std::int16_t>(v); };
    const Op add16op = [&](auto a, auto b) { return add16(s16(a), s16(b)); };
    const Op sub16op = [&](auto a, auto b) { return sub16(s16(a), s16(b)); };
    const Op mul16op = [&](auto a, auto b) { return mul16(s16(a), s16(b)); };
    const Op add32op = [](auto a, auto b) { return add32(a, b); };
    const Op sub32op = [](auto a, auto b) { return sub32(a, b); };
    constexpr std::int32_t Max32 = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t Min32 = std::numeric_limits<std::int32_t>::min();
    struct Row { const char* name; const Op& op; std::int32_t a, b; std::int64_t expected; int error; };
    const Row rows[] = {
        {"add16 past the largest", add16op, 32767, 1, 0, err::Overflow},
        {"sub16 of the smallest from zero", sub16op, 0, -32768, 0, err::Overflow},
        {"sub16 of the smallest from minus one", sub16op, -1, -32768, 32767, Ok},
        {"mul16 past the largest", mul16op, 128, 256, 0, err::Overflow},
        {"mul16 smallest times minus one", mul16op, -32768, -1, 0, err::Overflow},
        {"mul16 whose 16-bit wrap looks sane", mul16op, 200, 200, 0, err::Overflow},
        {"add32 past the largest", add32op, Max32, 1, 0, err::Overflow},
        {"sub32 down to the smallest", sub32op, Min32 + 1, 1, Min32, Ok},
        {"sub32 of the smallest from zero", sub32op, 0, Min32, 0, err::Overflow},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        std::int64_t got = 0;
        EXPECT_EQ(errorOf([&] { got = r.op(r.a, r.b); }), r.error);
        if (r.error == Ok) { EXPECT_EQ(got, r.expected); }
    }
}

TEST(Numbers, NumbersAreWrittenInTheirShortestFormWithABlankWhenNotNegative) {
    struct Row { const char* name; double value; const char* plain; const char* withBlank; };
    const Row rows[] = {
        {"zero", 0, "0", " 0"},
        {"negative zero", -0.0, "0", " 0"},
        {"decimal", 7.5, "7.5", " 7.5"},
        {"binary rounding noise", 0.1 + 0.2, "0.3", " 0.3"},
        {"fifteen significant digits", 2.0 / 3, "0.666666666666667", " 0.666666666666667"},
        {"rounds up into the exponent form", 999999999999999.9, "1E+15", " 1E+15"},
        {"first small exponent", 0.000015, "1.5E-05", " 1.5E-05"},
        {"negative tiny", -3.25e-7, "-3.25E-07", "-3.25E-07"},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(plainText(r.value), r.plain);
        EXPECT_EQ(numberText(r.value), r.withBlank);
    }
}

TEST(Numbers, TextHelpersWorkOnWholeUtf8Letters) {
    // Accented capitals and letter counts of map names are played by the load scenarios.
    EXPECT_EQ(upper("stra\xC3\x9F" "e"), "STRASSE");
    EXPECT_EQ(charCount("a\xC3\x9F\xE2\x82\xAC\xF0\x9F\x98\x80z"), 5);  // one letter of each length
    EXPECT_EQ(trim(" \tx\t "), "\tx\t");  // only spaces are trimmed
}

TEST(TimeText, MinutesAndSecondesAreInverseAndReadMinutesLenientlySecondsStrictly) {
    struct Case { int seconds; const char* text; };
    for (const Case c : {Case{0, "00:00"}, Case{59, "00:59"}, Case{60, "01:00"}, Case{6000, "100:00"},
                         Case{32767, "546:07"}, Case{-20, "-00:20"}, Case{-90, "-01:30"}, Case{-32768, "-546:08"}}) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Minutes(static_cast<std::int16_t>(c.seconds)), c.text);
        EXPECT_EQ(Secondes(c.text), c.seconds);
    }
    EXPECT_EQ(Secondes("5:7") + Secondes("x:30"), 337);
    for (const char* text : {"20", "20:", "20:soon", "2:30:15"}) {  // only the first colon divides
        SCOPED_TRACE(text);
        EXPECT_EQ(errorOf([&] { Secondes(text); }), err::TypeMismatch);
    }
}

}  // namespace
