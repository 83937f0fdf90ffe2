#pragma once

#include <cstdint>

namespace brelk {

// The row (or category) numbers 1..count, counted wider than a row number so
// that a full list of 32767 rows still ends its loop.
class RowRange {
public:
    explicit RowRange(std::int16_t count) : count_(count) {}

    class iterator {
    public:
        explicit iterator(int n) : n_(n) {}
        std::int16_t operator*() const { return static_cast<std::int16_t>(n_); }
        iterator& operator++() {
            ++n_;
            return *this;
        }
        bool operator!=(const iterator& other) const { return n_ != other.n_; }

    private:
        int n_;
    };

    iterator begin() const { return iterator(1); }
    iterator end() const { return iterator(count_ < 0 ? 1 : count_ + 1); }

private:
    int count_;
};

inline RowRange rowsUpTo(std::int16_t count) { return RowRange(count); }

}  // namespace brelk
