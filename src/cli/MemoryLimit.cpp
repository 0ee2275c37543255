#include "cli/MemoryLimit.h"

#if defined(__linux__)
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace ostrel::cli {

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
void LimitMemory() {
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    rlimit limit{};
    if (pages <= 0 || pageSize <= 0 || getrlimit(RLIMIT_DATA, &limit) != 0) return;
    const rlim_t most = static_cast<rlim_t>(pages) * static_cast<rlim_t>(pageSize) / 4 * 3;
    if (limit.rlim_cur != RLIM_INFINITY && limit.rlim_cur <= most) return;
    limit.rlim_cur = most;
    setrlimit(RLIMIT_DATA, &limit);
}
#else
void LimitMemory() {}
#endif

} // namespace ostrel::cli
