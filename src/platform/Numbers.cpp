#include "platform/Numbers.h"

#include "platform/Errors.h"

#include <QString>

#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>

namespace brelk::num {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || c == '\t'; }

// The shape of a number read from text: where it starts and ends, and the
// facts needed to tell an overflow from an underflow when the conversion
// reports a value out of range.
struct Scanned {
    bool found = false;          // at least one mantissa digit was read
    std::size_t begin = 0;       // first character of the number (its sign)
    std::size_t end = 0;         // one past the last character of the number
    bool negative = false;
    // Decimal exponent of the first non-zero mantissa digit once the written
    // exponent is applied (d.ddd x 10^magnitude); meaningless for zero.
    long long magnitude = 0;
    bool allZero = true;         // every mantissa digit is 0
};

constexpr long long exponentLimit = 1'000'000'000LL;  // saturation of exponents

// Reads the longest number at `pos`: optional sign, digits, optional "." and
// digits (at least one digit in all), optional exponent ("E"/"e", optional
// sign, at least one digit; without a digit the "E" is not part of it).
Scanned scanNumber(std::string_view text, std::size_t pos) {
    Scanned s;
    s.begin = pos;
    std::size_t i = pos;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        s.negative = text[i] == '-';
        ++i;
    }
    long long integerDigits = 0;      // significant digits before the point
    long long leadingFractionZeros = 0;
    bool seenNonZero = false;
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) {
        if (text[i] != '0') seenNonZero = true;
        if (seenNonZero && integerDigits < exponentLimit) ++integerDigits;
        ++digits;
        ++i;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && isDigit(text[i])) {
            if (text[i] != '0') seenNonZero = true;
            if (!seenNonZero && leadingFractionZeros < exponentLimit) ++leadingFractionZeros;
            ++digits;
            ++i;
        }
    }
    if (digits == 0) return s;  // no number: "", "-", ".", "+.", "abc"
    s.found = true;
    s.allZero = !seenNonZero;
    s.end = i;

    long long exponent = 0;
    if (i < text.size() && (text[i] == 'E' || text[i] == 'e')) {
        std::size_t j = i + 1;
        bool expNegative = false;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) {
            expNegative = text[j] == '-';
            ++j;
        }
        if (j < text.size() && isDigit(text[j])) {
            while (j < text.size() && isDigit(text[j])) {
                if (exponent < exponentLimit) exponent = exponent * 10 + (text[j] - '0');
                ++j;
            }
            if (expNegative) exponent = -exponent;
            s.end = j;
        }
    }
    s.magnitude = (integerDigits > 0 ? integerDigits - 1 : -(leadingFractionZeros + 1)) + exponent;
    return s;
}

enum class Range { Ok, Overflow };

// Converts a scanned number; an underflow gives 0 (of the right sign), an
// overflow gives +/-DBL_MAX and reports Range::Overflow.
double convert(std::string_view text, const Scanned& s, Range& range) {
    range = Range::Ok;
    std::size_t first = s.begin;
    if (text[first] == '+' || text[first] == '-') ++first;  // from_chars takes no '+'
    const char* b = text.data() + first;
    const char* e = text.data() + s.end;
    double v = 0;
    auto result = std::from_chars(b, e, v, std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range) {
        if (!s.allZero && s.magnitude > 0) {
            range = Range::Overflow;
            v = DBL_MAX;
        } else {
            v = 0;
        }
    } else if (result.ec != std::errc() || result.ptr != e) {
        v = 0;  // cannot happen for a scanned number; be safe
    }
    if (std::isinf(v)) {
        range = Range::Overflow;
        v = DBL_MAX;
    }
    if (s.negative && v != 0) v = -v;
    return v;
}

// The whole text is one number with blanks around it; `s` describes it.
bool scanStrict(std::string_view text, Scanned& s) {
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i])) ++i;
    s = scanNumber(text, i);
    if (!s.found) return false;
    std::size_t j = s.end;
    while (j < text.size() && isBlank(text[j])) ++j;
    return j == text.size();
}

}  // namespace

double leadingValue(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i])) ++i;
    Scanned s = scanNumber(text, i);
    if (!s.found) return 0;
    Range range;
    return convert(text, s, range);
}

double strictValue(std::string_view text) {
    Scanned s;
    if (!scanStrict(text, s)) brelk::raise(err::TypeMismatch);
    Range range;
    double v = convert(text, s, range);
    if (range == Range::Overflow) brelk::raise(err::Overflow);
    return v;
}

bool isStrictNumber(std::string_view text) {
    Scanned s;
    if (!scanStrict(text, s)) return false;
    Range range;
    convert(text, s, range);
    return range == Range::Ok;
}

double roundHalfEven(double v) {
    if (!std::isfinite(v)) return v;
    // Every double of magnitude 2^52 or more is a whole number already.
    if (std::fabs(v) >= 4503599627370496.0) return v;
    double lower = std::floor(v);
    double fraction = v - lower;  // exact: both are doubles of close magnitude
    double r;
    if (fraction > 0.5) {
        r = lower + 1;
    } else if (fraction < 0.5) {
        r = lower;
    } else {
        r = std::fmod(lower, 2.0) == 0 ? lower : lower + 1;
    }
    if (r == 0) return 0.0;  // no negative zero
    return r;
}

std::int16_t toInt16(double v) {
    if (std::isnan(v)) brelk::raise(err::Overflow);
    double r = roundHalfEven(v);
    if (r < -32768.0 || r > 32767.0) brelk::raise(err::Overflow);
    return static_cast<std::int16_t>(r);
}

std::int32_t toInt32(double v) {
    if (std::isnan(v)) brelk::raise(err::Overflow);
    double r = roundHalfEven(v);
    if (r < -2147483648.0 || r > 2147483647.0) brelk::raise(err::Overflow);
    return static_cast<std::int32_t>(r);
}

namespace {
std::int16_t checked16(std::int32_t r) {
    if (r < std::numeric_limits<std::int16_t>::min() || r > std::numeric_limits<std::int16_t>::max())
        brelk::raise(err::Overflow);
    return static_cast<std::int16_t>(r);
}
std::int32_t checked32(std::int64_t r) {
    if (r < std::numeric_limits<std::int32_t>::min() || r > std::numeric_limits<std::int32_t>::max())
        brelk::raise(err::Overflow);
    return static_cast<std::int32_t>(r);
}
}  // namespace

std::int16_t add16(std::int16_t a, std::int16_t b) { return checked16(std::int32_t{a} + b); }
std::int16_t sub16(std::int16_t a, std::int16_t b) { return checked16(std::int32_t{a} - b); }
std::int16_t mul16(std::int16_t a, std::int16_t b) { return checked16(std::int32_t{a} * b); }
std::int32_t add32(std::int32_t a, std::int32_t b) { return checked32(std::int64_t{a} + b); }
std::int32_t sub32(std::int32_t a, std::int32_t b) { return checked32(std::int64_t{a} - b); }

std::string plainText(double v) {
    if (std::isnan(v)) return "NaN";
    if (std::isinf(v)) return v < 0 ? "-Inf" : "Inf";
    if (v == 0) return "0";  // -0 too

    // 15 significant digits, rounded: d.dddddddddddddde[+-]x
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(v), std::chars_format::scientific, 14);
    std::string_view sci(buf, static_cast<std::size_t>(res.ptr - buf));
    std::size_t ePos = sci.find('e');
    std::string digits;
    for (char c : sci.substr(0, ePos))
        if (isDigit(c)) digits += c;
    int exponent = 0;
    std::from_chars(sci.data() + ePos + 1 + (sci[ePos + 1] == '+' ? 1 : 0), sci.data() + sci.size(), exponent);
    while (digits.size() > 1 && digits.back() == '0') digits.pop_back();

    std::string out = v < 0 ? "-" : "";
    const int n = static_cast<int>(digits.size());
    if (exponent >= 15 || exponent < -4) {
        out += digits[0];
        if (n > 1) {
            out += '.';
            out.append(digits, 1);
        }
        out += exponent < 0 ? "E-" : "E+";
        int a = exponent < 0 ? -exponent : exponent;
        if (a < 10) out += '0';
        out += std::to_string(a);
    } else if (exponent < 0) {
        out += "0.";
        out.append(static_cast<std::size_t>(-exponent - 1), '0');
        out += digits;
    } else if (n <= exponent + 1) {
        out += digits;
        out.append(static_cast<std::size_t>(exponent + 1 - n), '0');
    } else {
        out.append(digits, 0, static_cast<std::size_t>(exponent + 1));
        out += '.';
        out.append(digits, static_cast<std::size_t>(exponent + 1));
    }
    return out;
}

std::string numberText(double v) {
    std::string t = plainText(v);
    if (v >= 0) return " " + t;  // -0 compares equal to 0: " 0"
    return t;
}

std::string upper(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toUpper().toStdString();
}

std::string trim(std::string_view text) { return trimRight(trimLeft(text)); }

std::string trimLeft(std::string_view text) {
    std::size_t i = text.find_first_not_of(' ');
    if (i == std::string_view::npos) return {};
    return std::string(text.substr(i));
}

std::string trimRight(std::string_view text) {
    std::size_t i = text.find_last_not_of(' ');
    if (i == std::string_view::npos) return {};
    return std::string(text.substr(0, i + 1));
}

std::string withoutEvery(std::string_view text, std::string_view part) {
    std::string out(text);
    if (part.empty()) return out;
    for (std::size_t at = 0; (at = out.find(part, at)) != std::string::npos;) out.erase(at, part.size());
    return out;
}

int charCount(std::string_view text) {
    int n = 0;
    for (char c : text) {
        auto b = static_cast<unsigned char>(c);
        if (b < 0x80 || b > 0xBF) ++n;
    }
    return n;
}

}  // namespace brelk::num
