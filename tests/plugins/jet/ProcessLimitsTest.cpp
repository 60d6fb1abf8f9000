#include "jet/ProcessLimits.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr rlim_t Gigabyte = rlim_t(1) << 30;

bool isAtMost(__rlimit_resource resource, rlim_t most) {
    rlimit limits{};
    return getrlimit(resource, &limits) == 0 && limits.rlim_cur <= most;
}

TEST(ProcessLimits, memoryAndTimeOfTheProcessAreBounded) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer needs more addresses than the limit leaves";
#endif
    const pid_t child = fork();
    if (child == 0) {
        limitThisProcess();
        const bool isBounded = isAtMost(RLIMIT_AS, Gigabyte) && isAtMost(RLIMIT_CPU, 300);
        _exit(isBounded ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

} // namespace
