#pragma once

// Runs a check in a child process whose memory is capped a little above what
// this process uses, to see how code copes when an allocation fails.

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <functional>

namespace brelk::testing {

// Whether the memory this process uses can be known here.
inline bool canCapMemory() { return std::ifstream("/proc/self/statm").good(); }

// The check, run in a child allowed `headroom` bytes beyond this process's
// present size: a success when the child ends normally and the check holds.
inline ::testing::AssertionResult holdsWithMemoryCap(const std::function<bool()>& check,
                                                     rlim_t headroom = rlim_t{256} << 20) {
    std::ifstream statm("/proc/self/statm");
    rlim_t pages = 0;
    statm >> pages;
    const rlim_t cap = pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + headroom;
    const pid_t pid = ::fork();
    if (pid < 0) return ::testing::AssertionFailure() << "cannot start a child";
    if (pid == 0) {
        const rlimit limit{cap, cap};
        ::setrlimit(RLIMIT_AS, &limit);
        ::_exit(check() ? 0 : 1);
    }
    int status = 0;
    if (::waitpid(pid, &status, 0) != pid) return ::testing::AssertionFailure() << "lost the child";
    if (!WIFEXITED(status)) return ::testing::AssertionFailure() << "the child was brought down";
    if (WEXITSTATUS(status) != 0) return ::testing::AssertionFailure() << "the check did not hold";
    return ::testing::AssertionSuccess();
}

}  // namespace brelk::testing
