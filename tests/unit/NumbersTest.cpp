// Unit tests of the numbers-and-text conversions (platform/Numbers) and of the
// numbered run-time errors (platform/Errors).
#include "platform/Errors.h"
#include "platform/Numbers.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <ostream>
#include <string>

namespace {

using namespace brelk;
using namespace brelk::num;

// Runs `f` and returns the number of the RuntimeError it raised, or -1 when it
// returned normally.
int errorOf(const std::function<void()>& f) {
    try {
        f();
    } catch (const RuntimeError& e) {
        return e.number();
    }
    return -1;
}

// Test-name suffixes must be alphanumeric (or '_').
template <class Row>
std::string rowName(const testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

// ---------------------------------------------------------------- leadingValue

struct LenientCase {
    const char* name;
    const char* text;
    double expected;
};
std::ostream& operator<<(std::ostream& os, const LenientCase& c) { return os << c.name << " \"" << c.text << '"'; }

class NumbersLeadingValue : public testing::TestWithParam<LenientCase> {};

TEST_P(NumbersLeadingValue, ReadsTheNumberAtTheStart) {
    const LenientCase& c = GetParam();
    EXPECT_DOUBLE_EQ(leadingValue(c.text), c.expected) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersLeadingValue,
    testing::Values(
        LenientCase{"Empty", "", 0},
        LenientCase{"Letters", "abc", 0},
        LenientCase{"SignOnly", "-", 0},
        LenientCase{"PlusOnly", "+", 0},
        LenientCase{"PointOnly", ".", 0},
        LenientCase{"SignAndPoint", "-.", 0},
        LenientCase{"BlanksOnly", " \t ", 0},
        LenientCase{"Integer", "42", 42},
        LenientCase{"DigitsThenLetters", "255abc", 255},
        LenientCase{"LeadingBlankDecimal", " 7.5x", 7.5},
        LenientCase{"BlanksTabsNegativeDecimal", "  \t-7.6abc", -7.6},
        LenientCase{"ExplicitPlus", "+12", 12},
        LenientCase{"FractionOnly", ".5", 0.5},
        LenientCase{"NegativeFractionOnly", "-.25", -0.25},
        LenientCase{"TrailingPoint", "5.", 5},
        LenientCase{"ExponentThenLetter", "1e3x", 1000},
        LenientCase{"UpperExponent", "2E2", 200},
        LenientCase{"NegativeExponent", "25e-1", 2.5},
        LenientCase{"PlusExponent", "1.5E+2", 150},
        LenientCase{"ExponentWithoutDigits", "7e", 7},
        LenientCase{"ExponentSignWithoutDigits", "7e+x", 7},
        LenientCase{"SecondPointStops", "1.2.3", 1.2},
        LenientCase{"InnerBlankStops", "12 34", 12},
        LenientCase{"TrailingBlanks", "9   ", 9},
        LenientCase{"LeadingZeros", "007", 7},
        LenientCase{"SignThenBlankIsNoNumber", "- 5", 0},
        LenientCase{"HexIsNotRead", "&H10", 0},
        LenientCase{"NegativeZero", "-0", 0},
        LenientCase{"TinyUnderflowsToZero", "1e-400", 0},
        LenientCase{"HugeClampsToMax", "1e400", DBL_MAX},
        LenientCase{"NegativeHugeClampsToMinusMax", "-1e400", -DBL_MAX},
        LenientCase{"HugeExponentDigits", "1e99999999999999999999", DBL_MAX},
        LenientCase{"ZeroWithHugeExponent", "0e99999", 0}),
    rowName<LenientCase>);

TEST(NumbersLeadingValueSign, NegativeZeroIsPlainZero) {
    EXPECT_FALSE(std::signbit(leadingValue("-0")));
}

// ---------------------------------------------------------------- strictValue

struct StrictAccept {
    const char* name;
    const char* text;
    double expected;
};
std::ostream& operator<<(std::ostream& os, const StrictAccept& c) { return os << c.name << " \"" << c.text << '"'; }

class NumbersStrictAccept : public testing::TestWithParam<StrictAccept> {};

TEST_P(NumbersStrictAccept, IsOneNumber) {
    const StrictAccept& c = GetParam();
    EXPECT_TRUE(isStrictNumber(c.text));
    EXPECT_DOUBLE_EQ(strictValue(c.text), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersStrictAccept,
    testing::Values(
        StrictAccept{"Integer", "42", 42},
        StrictAccept{"Zero", "0", 0},
        StrictAccept{"Negative", "-3", -3},
        StrictAccept{"ExplicitPlus", "+3", 3},
        StrictAccept{"Decimal", "7.5", 7.5},
        StrictAccept{"FractionOnly", ".5", 0.5},
        StrictAccept{"TrailingPoint", "5.", 5},
        StrictAccept{"NegativeFractionOnly", "-.5", -0.5},
        StrictAccept{"Exponent", "1e3", 1000},
        StrictAccept{"UpperExponentSigned", "2.5E-1", 0.25},
        StrictAccept{"ExponentPlus", "1E+2", 100},
        StrictAccept{"BlanksAround", "  12  ", 12},
        StrictAccept{"TabsAround", "\t12\t", 12},
        StrictAccept{"LeadingZeros", "0007", 7},
        StrictAccept{"LargestDouble", "1.7976931348623157e308", DBL_MAX},
        StrictAccept{"UnderflowIsZero", "1e-400", 0}),
    rowName<StrictAccept>);

struct StrictReject {
    const char* name;
    const char* text;
    int error;
};
std::ostream& operator<<(std::ostream& os, const StrictReject& c) { return os << c.name << " \"" << c.text << '"'; }

class NumbersStrictReject : public testing::TestWithParam<StrictReject> {};

TEST_P(NumbersStrictReject, RaisesItsError) {
    const StrictReject& c = GetParam();
    EXPECT_FALSE(isStrictNumber(c.text));
    EXPECT_EQ(errorOf([&] { strictValue(c.text); }), c.error);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersStrictReject,
    testing::Values(
        StrictReject{"Empty", "", err::TypeMismatch},
        StrictReject{"BlanksOnly", "   ", err::TypeMismatch},
        StrictReject{"TabOnly", "\t", err::TypeMismatch},
        StrictReject{"Letters", "abc", err::TypeMismatch},
        StrictReject{"TrailingLetters", "12abc", err::TypeMismatch},
        StrictReject{"SignOnly", "-", err::TypeMismatch},
        StrictReject{"PointOnly", ".", err::TypeMismatch},
        StrictReject{"SignAndPoint", "+.", err::TypeMismatch},
        StrictReject{"TwoPoints", "1.2.3", err::TypeMismatch},
        StrictReject{"InnerBlank", "1 2", err::TypeMismatch},
        StrictReject{"SignThenBlank", "- 1", err::TypeMismatch},
        StrictReject{"TwoSigns", "--1", err::TypeMismatch},
        StrictReject{"ExponentWithoutDigits", "1e", err::TypeMismatch},
        StrictReject{"ExponentSignWithoutDigits", "1e+", err::TypeMismatch},
        StrictReject{"ExponentAlone", "e5", err::TypeMismatch},
        StrictReject{"Hex", "&H10", err::TypeMismatch},
        StrictReject{"NewlineAfter", "5\n", err::TypeMismatch},
        StrictReject{"Comma", "1,5", err::TypeMismatch},
        StrictReject{"Infinity", "inf", err::TypeMismatch},
        StrictReject{"NotANumber", "nan", err::TypeMismatch},
        StrictReject{"TooLarge", "1e400", err::Overflow},
        StrictReject{"TooLargeNegative", "-1e400", err::Overflow},
        StrictReject{"JustAboveMax", "1.7976931348623159e308", err::Overflow}),
    rowName<StrictReject>);

// ---------------------------------------------------------------- roundHalfEven

struct RoundCase {
    const char* name;
    double value;
    double expected;
};
std::ostream& operator<<(std::ostream& os, const RoundCase& c) { return os << c.name << ' ' << c.value; }

class NumbersRoundHalfEven : public testing::TestWithParam<RoundCase> {};

TEST_P(NumbersRoundHalfEven, RoundsHalvesToEven) {
    const RoundCase& c = GetParam();
    double r = roundHalfEven(c.value);
    EXPECT_EQ(r, c.expected);
    EXPECT_FALSE(std::signbit(r) && r == 0) << "negative zero";
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersRoundHalfEven,
    testing::Values(
        RoundCase{"Zero", 0, 0},
        RoundCase{"NegativeZero", -0.0, 0},
        RoundCase{"HalfDown", 0.5, 0},
        RoundCase{"OneAndHalfUp", 1.5, 2},
        RoundCase{"TwoAndHalfDown", 2.5, 2},
        RoundCase{"ThreeAndHalfUp", 3.5, 4},
        RoundCase{"NegativeHalf", -0.5, 0},
        RoundCase{"NegativeOneAndHalf", -1.5, -2},
        RoundCase{"NegativeTwoAndHalf", -2.5, -2},
        RoundCase{"NegativeThreeAndHalf", -3.5, -4},
        RoundCase{"BelowHalf", 2.49, 2},
        RoundCase{"AboveHalf", 2.51, 3},
        RoundCase{"NegativeBelowHalf", -2.49, -2},
        RoundCase{"NegativeAboveHalf", -2.51, -3},
        RoundCase{"SmallNegative", -0.3, 0},
        RoundCase{"JustBelowHalf", 0.49999999999999994, 0},
        RoundCase{"Whole", 7, 7},
        RoundCase{"Int16MaxHalf", 32767.5, 32768},
        RoundCase{"Int16MaxMinusHalf", 32766.5, 32766},
        RoundCase{"Int16MinHalf", -32768.5, -32768},
        RoundCase{"Int16MinMinusHalf", -32767.5, -32768},
        RoundCase{"Int32MaxHalf", 2147483647.5, 2147483648.0},
        RoundCase{"Int32MinHalf", -2147483648.5, -2147483648.0},
        RoundCase{"LargeOddHalf", 4503599627370495.5, 4503599627370496.0},
        RoundCase{"HugeWhole", 1e300, 1e300}),
    rowName<RoundCase>);

TEST(NumbersRoundHalfEvenSpecial, NonFiniteValuesPassThrough) {
    EXPECT_TRUE(std::isnan(roundHalfEven(std::numeric_limits<double>::quiet_NaN())));
    EXPECT_EQ(roundHalfEven(std::numeric_limits<double>::infinity()), std::numeric_limits<double>::infinity());
}

// ---------------------------------------------------------------- toInt16 / toInt32

struct ConvCase {
    const char* name;
    double value;
    std::int64_t expected;  // ignored when overflow
    bool overflow;
};
std::ostream& operator<<(std::ostream& os, const ConvCase& c) { return os << c.name << ' ' << c.value; }

class NumbersToInt16 : public testing::TestWithParam<ConvCase> {};

TEST_P(NumbersToInt16, RoundsAndChecks) {
    const ConvCase& c = GetParam();
    if (c.overflow) {
        EXPECT_EQ(errorOf([&] { toInt16(c.value); }), err::Overflow);
    } else {
        EXPECT_EQ(toInt16(c.value), c.expected);
    }
}

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Inf = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersToInt16,
    testing::Values(
        ConvCase{"Zero", 0, 0, false},
        ConvCase{"HalfToEvenDown", 2.5, 2, false},
        ConvCase{"HalfToEvenUp", 3.5, 4, false},
        ConvCase{"NegativeHalf", -2.5, -2, false},
        ConvCase{"Max", 32767, 32767, false},
        ConvCase{"JustBelowMaxHalf", 32767.4, 32767, false},
        ConvCase{"MaxMinusHalfIsEven", 32766.5, 32766, false},
        ConvCase{"MaxHalfOverflows", 32767.5, 0, true},
        ConvCase{"AboveMax", 32768, 0, true},
        ConvCase{"Min", -32768, -32768, false},
        ConvCase{"MinHalfIsEven", -32768.5, -32768, false},
        ConvCase{"BelowMinHalf", -32768.6, 0, true},
        ConvCase{"BelowMin", -32769, 0, true},
        ConvCase{"NaN", NaN, 0, true},
        ConvCase{"Infinity", Inf, 0, true},
        ConvCase{"NegativeInfinity", -Inf, 0, true}),
    rowName<ConvCase>);

class NumbersToInt32 : public testing::TestWithParam<ConvCase> {};

TEST_P(NumbersToInt32, RoundsAndChecks) {
    const ConvCase& c = GetParam();
    if (c.overflow) {
        EXPECT_EQ(errorOf([&] { toInt32(c.value); }), err::Overflow);
    } else {
        EXPECT_EQ(toInt32(c.value), c.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersToInt32,
    testing::Values(
        ConvCase{"Zero", 0, 0, false},
        ConvCase{"HalfToEven", 0.5, 0, false},
        ConvCase{"NegativeOneAndHalf", -1.5, -2, false},
        ConvCase{"Beyond16Bit", 40000, 40000, false},
        ConvCase{"Max", 2147483647, 2147483647, false},
        ConvCase{"MaxMinusHalfIsEven", 2147483646.5, 2147483646, false},
        ConvCase{"MaxHalfOverflows", 2147483647.5, 0, true},
        ConvCase{"AboveMax", 2147483648.0, 0, true},
        ConvCase{"Min", -2147483648.0, -2147483648LL, false},
        ConvCase{"MinHalfIsEven", -2147483648.5, -2147483648LL, false},
        ConvCase{"BelowMin", -2147483649.0, 0, true},
        ConvCase{"NaN", NaN, 0, true},
        ConvCase{"Infinity", Inf, 0, true}),
    rowName<ConvCase>);

// ---------------------------------------------------------------- checked arithmetic

enum class Op { Add16, Sub16, Mul16, Add32, Sub32 };

struct ArithCase {
    const char* name;
    Op op;
    std::int32_t a;
    std::int32_t b;
    std::int64_t expected;  // ignored when overflow
    bool overflow;
};
std::ostream& operator<<(std::ostream& os, const ArithCase& c) { return os << c.name << ' ' << c.a << ',' << c.b; }

std::int64_t apply(const ArithCase& c) {
    auto a16 = static_cast<std::int16_t>(c.a);
    auto b16 = static_cast<std::int16_t>(c.b);
    switch (c.op) {
    case Op::Add16: return add16(a16, b16);
    case Op::Sub16: return sub16(a16, b16);
    case Op::Mul16: return mul16(a16, b16);
    case Op::Add32: return add32(c.a, c.b);
    case Op::Sub32: return sub32(c.a, c.b);
    }
    return 0;
}

class NumbersChecked : public testing::TestWithParam<ArithCase> {};

TEST_P(NumbersChecked, ComputesOrOverflows) {
    const ArithCase& c = GetParam();
    if (c.overflow) {
        EXPECT_EQ(errorOf([&] { apply(c); }), err::Overflow);
    } else {
        EXPECT_EQ(apply(c), c.expected);
    }
}

constexpr std::int32_t I32Max = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t I32Min = std::numeric_limits<std::int32_t>::min();

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersChecked,
    testing::Values(
        ArithCase{"Add16Plain", Op::Add16, 2, 3, 5, false},
        ArithCase{"Add16ToMax", Op::Add16, 32766, 1, 32767, false},
        ArithCase{"Add16PastMax", Op::Add16, 32767, 1, 0, true},
        ArithCase{"Add16ToMin", Op::Add16, -32767, -1, -32768, false},
        ArithCase{"Add16PastMin", Op::Add16, -32768, -1, 0, true},
        ArithCase{"Add16MaxPlusMin", Op::Add16, 32767, -32768, -1, false},
        ArithCase{"Sub16Plain", Op::Sub16, 2, 5, -3, false},
        ArithCase{"Sub16ToMin", Op::Sub16, -32767, 1, -32768, false},
        ArithCase{"Sub16PastMin", Op::Sub16, -32768, 1, 0, true},
        ArithCase{"Sub16ZeroMinusMin", Op::Sub16, 0, -32768, 0, true},
        ArithCase{"Sub16MinusOneMinusMin", Op::Sub16, -1, -32768, 32767, false},
        ArithCase{"Sub16MaxMinusNegative", Op::Sub16, 32767, -1, 0, true},
        ArithCase{"Mul16Plain", Op::Mul16, -12, 11, -132, false},
        ArithCase{"Mul16ToMin", Op::Mul16, -128, 256, -32768, false},
        ArithCase{"Mul16PastMax", Op::Mul16, 128, 256, 0, true},
        ArithCase{"Mul16MinTimesMinusOne", Op::Mul16, -32768, -1, 0, true},
        ArithCase{"Mul16MaxTimesMinusOne", Op::Mul16, 32767, -1, -32767, false},
        ArithCase{"Mul16Large", Op::Mul16, 200, 200, 0, true},
        ArithCase{"Add32Plain", Op::Add32, 40000, 40000, 80000, false},
        ArithCase{"Add32ToMax", Op::Add32, I32Max - 1, 1, I32Max, false},
        ArithCase{"Add32PastMax", Op::Add32, I32Max, 1, 0, true},
        ArithCase{"Add32PastMin", Op::Add32, I32Min, -1, 0, true},
        ArithCase{"Add32MaxPlusMin", Op::Add32, I32Max, I32Min, -1, false},
        ArithCase{"Sub32Plain", Op::Sub32, 5, 40000, -39995, false},
        ArithCase{"Sub32ToMin", Op::Sub32, I32Min + 1, 1, I32Min, false},
        ArithCase{"Sub32PastMin", Op::Sub32, I32Min, 1, 0, true},
        ArithCase{"Sub32ZeroMinusMin", Op::Sub32, 0, I32Min, 0, true},
        ArithCase{"Sub32MaxMinusNegative", Op::Sub32, I32Max, -1, 0, true}),
    rowName<ArithCase>);

// ---------------------------------------------------------------- plainText / numberText

struct TextCase {
    const char* name;
    double value;
    const char* plain;
    const char* withBlank;
};
std::ostream& operator<<(std::ostream& os, const TextCase& c) { return os << c.name; }

class NumbersText : public testing::TestWithParam<TextCase> {};

TEST_P(NumbersText, PlainAndWithLeadingBlank) {
    const TextCase& c = GetParam();
    EXPECT_EQ(plainText(c.value), c.plain);
    EXPECT_EQ(numberText(c.value), c.withBlank);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersText,
    testing::Values(
        TextCase{"Zero", 0, "0", " 0"},
        TextCase{"NegativeZero", -0.0, "0", " 0"},
        TextCase{"Integer", 12, "12", " 12"},
        TextCase{"Hundred", 100, "100", " 100"},
        TextCase{"HundredTwenty", 120, "120", " 120"},
        TextCase{"Negative", -3, "-3", "-3"},
        TextCase{"Decimal", 7.5, "7.5", " 7.5"},
        TextCase{"NegativeDecimal", -7.5, "-7.5", "-7.5"},
        TextCase{"OneTenth", 0.1, "0.1", " 0.1"},
        TextCase{"NegativeFraction", -0.25, "-0.25", "-0.25"},
        TextCase{"Million", 1234567, "1234567", " 1234567"},
        TextCase{"Int16Min", -32768, "-32768", "-32768"},
        TextCase{"RoundingNoise", 0.1 + 0.2, "0.3", " 0.3"},
        TextCase{"OneThird", 1.0 / 3, "0.333333333333333", " 0.333333333333333"},
        TextCase{"TwoThirds", 2.0 / 3, "0.666666666666667", " 0.666666666666667"},
        TextCase{"FifteenDigits", 123456789012345, "123456789012345", " 123456789012345"},
        TextCase{"RoundsUpToExponent", 999999999999999.9, "1E+15", " 1E+15"},
        TextCase{"Exponent15", 1e15, "1E+15", " 1E+15"},
        TextCase{"Exponent20", 1e20, "1E+20", " 1E+20"},
        TextCase{"ExponentWithDigits", 1.5e20, "1.5E+20", " 1.5E+20"},
        TextCase{"NegativeExponentForm", -2.5e300, "-2.5E+300", "-2.5E+300"},
        TextCase{"SmallestPlain", 0.0001, "0.0001", " 0.0001"},
        TextCase{"SmallPlainDigits", 0.00012345, "0.00012345", " 0.00012345"},
        TextCase{"FirstSmallExponent", 0.00001, "1E-05", " 1E-05"},
        TextCase{"TinyExponent", 1e-20, "1E-20", " 1E-20"},
        TextCase{"NegativeTiny", -3.25e-7, "-3.25E-07", "-3.25E-07"}),
    rowName<TextCase>);

// ---------------------------------------------------------------- upper

struct UpperCase {
    const char* name;
    const char* text;
    const char* expected;
};
std::ostream& operator<<(std::ostream& os, const UpperCase& c) { return os << c.name; }

class NumbersUpper : public testing::TestWithParam<UpperCase> {};

TEST_P(NumbersUpper, UpperCasesUtf8) {
    const UpperCase& c = GetParam();
    EXPECT_EQ(upper(c.text), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersUpper,
    testing::Values(
        UpperCase{"Empty", "", ""},
        UpperCase{"Ascii", "abc xyz", "ABC XYZ"},
        UpperCase{"AlreadyUpper", "ABC", "ABC"},
        UpperCase{"DigitsAndPunctuation", "a1-b2.c!", "A1-B2.C!"},
        UpperCase{"FrenchAccents", "\xC3\xA9t\xC3\xA9 \xC3\xA0 \xC3\xA7" "a",        // "été à ça"
                  "\xC3\x89T\xC3\x89 \xC3\x80 \xC3\x87" "A"},                      // "ÉTÉ À ÇA"
        UpperCase{"GermanUmlaut", "m\xC3\xBC" "de", "M\xC3\x9C" "DE"},              // "müde" -> "MÜDE"
        UpperCase{"SharpSGrows", "stra\xC3\x9F" "e", "STRASSE"},                    // "straße"
        UpperCase{"Greek", "\xCE\xB1\xCE\xB2\xCE\xB3", "\xCE\x91\xCE\x92\xCE\x93"}),  // "αβγ" -> "ΑΒΓ"
    rowName<UpperCase>);

// ---------------------------------------------------------------- trim

struct TrimCase {
    const char* name;
    const char* text;
    const char* both;
    const char* left;
    const char* right;
};
std::ostream& operator<<(std::ostream& os, const TrimCase& c) { return os << c.name; }

class NumbersTrim : public testing::TestWithParam<TrimCase> {};

TEST_P(NumbersTrim, RemovesSpacesOnly) {
    const TrimCase& c = GetParam();
    EXPECT_EQ(trim(c.text), c.both);
    EXPECT_EQ(trimLeft(c.text), c.left);
    EXPECT_EQ(trimRight(c.text), c.right);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersTrim,
    testing::Values(
        TrimCase{"Empty", "", "", "", ""},
        TrimCase{"SpacesOnly", "   ", "", "", ""},
        TrimCase{"NoBlanks", "abc", "abc", "abc", "abc"},
        TrimCase{"BothEnds", "  a b  ", "a b", "a b  ", "  a b"},
        TrimCase{"LeftOnly", " x", "x", "x", " x"},
        TrimCase{"RightOnly", "x ", "x", "x ", "x"},
        TrimCase{"TabsKept", "\t x \t", "\t x \t", "\t x \t", "\t x \t"},
        TrimCase{"TabInsideSpaces", " \tx\t ", "\tx\t", "\tx\t ", " \tx\t"},
        TrimCase{"Utf8Kept", " \xC3\xA9 ", "\xC3\xA9", "\xC3\xA9 ", " \xC3\xA9"}),
    rowName<TrimCase>);

// ---------------------------------------------------------------- charCount

struct CountCase {
    const char* name;
    const char* text;
    int expected;
};
std::ostream& operator<<(std::ostream& os, const CountCase& c) { return os << c.name; }

class NumbersCharCount : public testing::TestWithParam<CountCase> {};

TEST_P(NumbersCharCount, CountsCodePoints) {
    const CountCase& c = GetParam();
    EXPECT_EQ(charCount(c.text), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumbersCharCount,
    testing::Values(
        CountCase{"Empty", "", 0},
        CountCase{"Ascii", "hello", 5},
        CountCase{"TwoByte", "\xC3\xA9t\xC3\xA9", 3},                 // "été"
        CountCase{"ThreeByte", "\xE2\x82\xAC" "5", 2},                 // "€5"
        CountCase{"FourByte", "\xF0\x9F\x98\x80", 1},                  // emoji
        CountCase{"Mixed", "a\xC3\x9F\xE2\x82\xAC\xF0\x9F\x98\x80z", 5}),
    rowName<CountCase>);

// ---------------------------------------------------------------- flags

TEST(NumbersFlag, TrueIsMinusOne) {
    EXPECT_EQ(flag(true), -1);
    EXPECT_EQ(flag(false), 0);
    EXPECT_TRUE(isTrue(-1));
    EXPECT_TRUE(isTrue(0.5));
    EXPECT_FALSE(isTrue(0));
}

// ---------------------------------------------------------------- Errors

TEST(Errors, RaiseCarriesNumberAndUsualDescription) {
    try {
        brelk::raise(err::Overflow);
        FAIL() << "raise returned";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), err::Overflow);
        EXPECT_STREQ(e.what(), "Overflow");
    }
}

TEST(Errors, RaiseWithDescriptionKeepsIt) {
    try {
        brelk::raise(err::ControlNotLoaded, "Control Foo does not exist");
        FAIL() << "raise returned";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), err::ControlNotLoaded);
        EXPECT_STREQ(e.what(), "Control Foo does not exist");
    }
}

TEST(Errors, IsAStandardRuntimeError) {
    EXPECT_THROW(brelk::raise(err::TypeMismatch), std::runtime_error);
}

TEST(Errors, ConversionsRaiseNumberedErrors) {
    try {
        strictValue("abc");
        FAIL() << "strictValue accepted abc";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), 13);
        EXPECT_STREQ(e.what(), "Type mismatch");
    }
}

struct DescriptionCase {
    const char* name;
    int number;
    const char* description;
};
std::ostream& operator<<(std::ostream& os, const DescriptionCase& c) { return os << c.name; }

class ErrorsDescription : public testing::TestWithParam<DescriptionCase> {};

TEST_P(ErrorsDescription, HasItsUsualText) {
    const DescriptionCase& c = GetParam();
    EXPECT_EQ(errorDescription(c.number), c.description);
}

INSTANTIATE_TEST_SUITE_P(
    Errors, ErrorsDescription,
    testing::Values(
        DescriptionCase{"InvalidCall", err::InvalidCall, "Invalid procedure call or argument"},
        DescriptionCase{"Overflow", err::Overflow, "Overflow"},
        DescriptionCase{"Subscript", err::SubscriptOutOfRange, "Subscript out of range"},
        DescriptionCase{"TypeMismatch", err::TypeMismatch, "Type mismatch"},
        DescriptionCase{"BadFileName", err::BadFileName, "Bad file name or number"},
        DescriptionCase{"FileNotFound", err::FileNotFound, "File not found"},
        DescriptionCase{"FileAlreadyOpen", err::FileAlreadyOpen, "File already open"},
        DescriptionCase{"InputPastEnd", err::InputPastEnd, "Input past end of file"},
        DescriptionCase{"PathNotFound", err::PathNotFound, "Path not found"},
        DescriptionCase{"ControlNotLoaded", err::ControlNotLoaded, "Control array element does not exist"},
        DescriptionCase{"AlreadyLoaded", err::AlreadyLoaded, "Object already loaded"},
        DescriptionCase{"DialogCancelled", err::DialogCancelled, "Cancel was selected"},
        DescriptionCase{"Unknown", 1234, "Application-defined or object-defined error"}),
    rowName<DescriptionCase>);

}  // namespace
