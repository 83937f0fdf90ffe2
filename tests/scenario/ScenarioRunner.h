#pragma once

#include <iosfwd>
#include <string>

namespace brelk::scenario {

struct Tally {
    int passed = 0;
    int failed = 0;     // expectations that did not hold
    int broken = 0;     // lines that could not be run
};

// Runs one scenario file as a fresh program in a fresh temporary program
// directory, reporting every failure to `out` with its file and line.
Tally runScenario(const std::string& path, std::ostream& out);

}  // namespace brelk::scenario
