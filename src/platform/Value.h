#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace brelk {

// A property's value: a number or a text, kept exactly as it was written so
// that a read gives back what the last write gave.
class Value {
public:
    Value() = default;
    Value(double v) : number_(v) {}
    Value(int v) : number_(v) {}
    Value(std::int64_t v) : number_(static_cast<double>(v)) {}
    Value(std::string v) : text_(std::move(v)), isText_(true) {}
    Value(const char* v) : text_(v), isText_(true) {}

    bool isText() const { return isText_; }
    // The number held; a text gives its strict numeric value, or NaN when it
    // is no number (so it equals no number).
    double number() const;
    // The text held; a number gives its shortest decimal form.
    std::string text() const;

    bool operator==(const Value& other) const;

private:
    double number_ = 0;
    std::string text_;
    bool isText_ = false;
};

}  // namespace brelk
