#pragma once

#include <functional>

#include "platform/Errors.h"

namespace brelk::doubles {

constexpr int kNoError = -1;

// The number of the run-time error that `f` raised, or kNoError.
inline int errorOf(const std::function<void()>& f) {
    try {
        f();
    } catch (const RuntimeError& e) {
        return e.number();
    }
    return kNoError;
}

}  // namespace brelk::doubles
