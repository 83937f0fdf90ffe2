#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brelk::options {

// Why a name typed for an option set cannot name its file in the program's
// folder, on this system or on Windows; none when it can. The name is
// taken as typed, already trimmed of blanks.
std::optional<std::string> setNameProblem(std::string_view name);

}  // namespace brelk::options
