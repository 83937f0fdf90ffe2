#include "platform/Value.h"

#include <limits>

#include "platform/Numbers.h"

namespace brelk {

double Value::number() const {
    if (!isText_) return number_;
    if (num::isStrictNumber(text_)) return num::strictValue(text_);
    return std::numeric_limits<double>::quiet_NaN();
}

std::string Value::text() const {
    return isText_ ? text_ : num::plainText(number_);
}

bool Value::operator==(const Value& other) const {
    if (isText_ != other.isText_) return false;
    return isText_ ? text_ == other.text_ : number_ == other.number_;
}

}  // namespace brelk
