#include "jet/ProcessLimits.h"

#include <algorithm>
#include <sys/resource.h>

// An address sanitizer reserves more addresses than any limit would leave it.
#if defined(__SANITIZE_ADDRESS__)
#define LUMENVIA_LIMITS_MEMORY 0
#elif defined(__has_feature)
#define LUMENVIA_LIMITS_MEMORY !__has_feature(address_sanitizer)
#else
#define LUMENVIA_LIMITS_MEMORY 1
#endif

namespace {

constexpr rlim_t Megabyte = rlim_t(1) << 20;
constexpr rlim_t MostMemory = 1024 * Megabyte;
constexpr rlim_t MostSeconds = 300;

void limit(__rlimit_resource resource, rlim_t most) {
    rlimit limits{};
    if (getrlimit(resource, &limits) != 0)
        return;
    limits.rlim_cur = limits.rlim_max == RLIM_INFINITY ? most : std::min(most, limits.rlim_max);
    setrlimit(resource, &limits);
}

} // namespace

void limitThisProcess() {
    if (LUMENVIA_LIMITS_MEMORY)
        limit(RLIMIT_AS, MostMemory);
    limit(RLIMIT_CPU, MostSeconds);
    limit(RLIMIT_CORE, 0);
}
