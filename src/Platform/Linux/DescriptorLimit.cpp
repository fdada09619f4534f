#include "Platform/Linux/DescriptorLimit.h"

#include <algorithm>
#include <limits>

namespace {

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
    const rlimit start = atStart(); // before it is gone
    const rlimit raised{.rlim_cur = start.rlim_max, .rlim_max = start.rlim_max};
    setrlimit(RLIMIT_NOFILE, &raised);
    return static_cast<qsizetype>(std::min<rlim_t>(current().rlim_cur, std::numeric_limits<int>::max()));
}
