#include <iostream>

#include "ScenarioRunner.h"

// brelk-scenario FILE.scn...: runs each file against a fresh headless program.
int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: brelk-scenario FILE.scn...\n";
        return 2;
    }
    brelk::scenario::Tally total;
    for (int i = 1; i < argc; ++i) {
        const auto t = brelk::scenario::runScenario(argv[i], std::cout);
        total.passed += t.passed;
        total.failed += t.failed;
        total.broken += t.broken;
        if (argc > 2) std::cout << argv[i] << ": " << t.passed << " passed, " << t.failed + t.broken << " failed\n";
    }
    std::cout << total.passed << " passed, " << total.failed + total.broken << " failed\n";
    return total.failed + total.broken == 0 ? 0 : 1;
}
