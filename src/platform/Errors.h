#pragma once

#include <stdexcept>
#include <string>

namespace brelk {

// Numbers of the run-time errors the program raises and catches.
namespace err {
constexpr int InvalidCall = 5;
constexpr int Overflow = 6;
constexpr int SubscriptOutOfRange = 9;
constexpr int TypeMismatch = 13;
constexpr int BadFileName = 52;
constexpr int FileNotFound = 53;
constexpr int FileAlreadyOpen = 55;
constexpr int InputPastEnd = 62;
constexpr int PathNotFound = 76;
constexpr int ControlNotLoaded = 340;
constexpr int AlreadyLoaded = 360;
constexpr int DialogCancelled = 32755;
}  // namespace err

// A numbered run-time error. It rises through the procedures to the nearest
// handler that catches it; the event dispatcher is the last one.
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    int number() const { return number_; }

private:
    int number_;
};

// Thrown by End: the program stops at once, with all its forms and timers.
// Whoever drives the program (the event loop, a test) catches it.
struct ProgramEnded {};

// Raises error `number` with its usual description.
[[noreturn]] void raise(int number);
[[noreturn]] void raise(int number, const std::string& description);
std::string errorDescription(int number);

}  // namespace brelk
