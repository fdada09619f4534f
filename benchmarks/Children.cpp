#include "Children.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void sleepUntilEnded(pid_t parent, const std::function<void()>& start) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    signal(SIGINT, SIG_IGN); // the terminal sends it to all, but the parent ends us
    if (getppid() != parent)
        _exit(0);
    if (start)
        start();
    for (;;)
        pause();
}

} // namespace

Children::Children(int count, const std::function<void()>& start) {
    const pid_t parent = getpid();
    while (this->count() < count) {
        const pid_t pid = fork();
        if (pid < 0)
            return;
        if (pid == 0)
            sleepUntilEnded(parent, start);
        m_pids.push_back(pid);
    }
}

Children::~Children() {
    for (const pid_t pid : m_pids)
        kill(pid, SIGKILL);
    for (const pid_t pid : m_pids)
        waitpid(pid, nullptr, 0);
}
