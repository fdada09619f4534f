#include "Platform/Unix/DescriptorLimit.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype descriptorsOfALargeTable = 4096;

rlimit current() {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    return limit;
}

} // namespace

const rlimit& DescriptorLimit::atStart() {
    static const rlimit limit = current();
    return limit;
}

qsizetype DescriptorLimit::raised() {
    const rlimit start = atStart(); // read before the change
    const rlimit raised{.rlim_cur = start.rlim_max, .rlim_max = start.rlim_max};
    setrlimit(RLIMIT_NOFILE, &raised);
    return static_cast<qsizetype>(std::min<rlim_t>(current().rlim_cur, std::numeric_limits<int>::max()));
}

void DescriptorLimit::reserve() {
    const auto highest = static_cast<int>(std::min(raised(), descriptorsOfALargeTable)) - 1;
    const int any = open("/", O_PATH | O_CLOEXEC);
    const int last = fcntl(any, F_DUPFD_CLOEXEC, highest);
    for (const int descriptor : {any, last}) {
        if (descriptor >= 0)
            close(descriptor);
    }
}
