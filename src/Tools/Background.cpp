#include "Tools/Background.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

void Tools::workBehindAll() {
    constexpr int lowestPriority = 19;
    setpriority(PRIO_PROCESS, 0, lowestPriority);
    // ioprio_set(2), whose header C++ cannot read: the class in the upper bits.
    constexpr int thisProcess = 1;
    constexpr int idle = 3;
    syscall(SYS_ioprio_set, thisProcess, 0, idle << 13);
}
