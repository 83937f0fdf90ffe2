#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The program's arithmetic and text conversions: 16-bit signed values whose
// overflow is an error, flags that are -1 or 0, lenient and strict reading of
// numbers, rounding half to even, and numbers written with a leading blank.
namespace brelk::num {

constexpr std::int16_t True = -1;
constexpr std::int16_t False = 0;

inline std::int16_t flag(bool b) { return b ? True : False; }
// Any non-zero value is true, as the program's flags are tested.
inline bool isTrue(double v) { return v != 0; }

// Numeric value of the number at the start of `text`: leading blanks and tabs
// are skipped, then an optional sign, digits, an optional decimal part and an
// optional exponent ("E" or "e", optional sign, digits) are read; reading stops
// at the first character that cannot continue the number. 0 when there is no
// number ("abc", "", "-", "."). "255abc" gives 255, " 7.5x" gives 7.5.
double leadingValue(std::string_view text);

// Strict conversion: the whole text, blanks around it allowed, must be one
// number (optional sign, digits with an optional decimal point, optional
// exponent). Anything else, the empty text included, raises run-time error 13
// (type mismatch). Values beyond the range of a double raise error 6.
double strictValue(std::string_view text);

// True when strictValue would succeed.
bool isStrictNumber(std::string_view text);

// Rounds to the nearest whole number, a half going to the even neighbour
// (2.5 -> 2, 3.5 -> 4, -2.5 -> -2).
double roundHalfEven(double v);

// Rounded (half to even) and checked conversions: a result outside the range
// raises run-time error 6 (overflow).
std::int16_t toInt16(double v);
std::int32_t toInt32(double v);

// Checked arithmetic: overflow raises run-time error 6, never wraps.
std::int16_t add16(std::int16_t a, std::int16_t b);
std::int16_t sub16(std::int16_t a, std::int16_t b);
std::int16_t mul16(std::int16_t a, std::int16_t b);
std::int32_t add32(std::int32_t a, std::int32_t b);
std::int32_t sub32(std::int32_t a, std::int32_t b);

// Shortest decimal form of a number, no leading blank: 12, -3, 7.5, 0.1,
// 1E+20 for very large or small magnitudes (up to 15 significant digits).
std::string plainText(double v);

// The number as text with one leading blank when it is not negative:
// " 12", "-3", " 7.5", " 0".
std::string numberText(double v);

// Upper case by Unicode rules, on UTF-8 text.
std::string upper(std::string_view text);

// Blanks (spaces only) removed at both ends / at the start / at the end.
std::string trim(std::string_view text);
std::string trimLeft(std::string_view text);
std::string trimRight(std::string_view text);

// The text with every occurrence of `part` removed, from left to right.
std::string withoutEvery(std::string_view text, std::string_view part);

// Number of characters (Unicode code points) of UTF-8 text.
int charCount(std::string_view text);

}  // namespace brelk::num
