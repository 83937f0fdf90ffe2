#include "platform/Errors.h"

namespace brelk {

void raise(int number) { throw RuntimeError(number, errorDescription(number)); }

void raise(int number, const std::string& description) { throw RuntimeError(number, description); }

std::string errorDescription(int number) {
    switch (number) {
    case err::InvalidCall: return "Invalid procedure call or argument";
    case err::Overflow: return "Overflow";
    case err::SubscriptOutOfRange: return "Subscript out of range";
    case err::TypeMismatch: return "Type mismatch";
    case err::BadFileName: return "Bad file name or number";
    case err::FileNotFound: return "File not found";
    case err::FileAlreadyOpen: return "File already open";
    case err::InputPastEnd: return "Input past end of file";
    case err::PathNotFound: return "Path not found";
    case err::ControlNotLoaded: return "Control array element does not exist";
    case err::AlreadyLoaded: return "Object already loaded";
    case err::DialogCancelled: return "Cancel was selected";
    default: return "Application-defined or object-defined error";
    }
}

}  // namespace brelk
