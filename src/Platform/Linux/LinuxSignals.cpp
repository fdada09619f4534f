#include "Platform/Linux/LinuxSignals.h"

#include "Platform/Linux/Pidfd.h"
#include "Platform/Linux/ProcStat.h"
#include "Platform/Log.h"

#include <cerrno>
#include <csignal>
#include <optional>
#include <string>
#include <utility>

namespace {

/// Maps the status and errno of the last system call.
SignalResult resultOf(long status) {
    if (status == 0)
        return SignalResult::delivered;
    const int reason = errno;
    qCInfo(Log::platform) << "a signal was not delivered:" << qt_error_string(reason);
    if (reason == EPERM)
        return SignalResult::notPermitted;
    return reason == ESRCH ? SignalResult::noSuchProcess : SignalResult::other;
}

class PidfdHandle : public ProcessHandle {
public:
    explicit PidfdHandle(Pidfd process)
        : m_process(std::move(process)) {}

    SignalResult send(Signal signal) override {
        return m_process.hasEnded() ? SignalResult::noSuchProcess
                                    : resultOf(m_process.send(static_cast<int>(signal)));
    }

private:
    Pidfd m_process;
};

/// Returns the start since boot in clock ticks, or an empty optional for an unused PID.
std::optional<quint64> startOf(qint32 pid) {
    const auto stat = ProcStat::read(KernelFile("/proc/" + std::to_string(pid) + "/stat"));
    return stat ? std::optional(stat->startTicks) : std::nullopt;
}

/// For a system without pidfd: a PID with the same start time is the same process.
class PidHandle : public ProcessHandle {
public:
    explicit PidHandle(qint32 pid)
        : m_pid(pid)
        , m_start(startOf(pid)) {}

    SignalResult send(Signal signal) override {
        if (!m_start || startOf(m_pid) != m_start)
            return SignalResult::noSuchProcess;
        return resultOf(::kill(m_pid, static_cast<int>(signal)));
    }

private:
    qint32 m_pid;
    std::optional<quint64> m_start;
};

class NoProcess : public ProcessHandle {
public:
    explicit NoProcess(SignalResult result)
        : m_result(result) {}

    SignalResult send(Signal) override { return m_result; }

private:
    SignalResult m_result;
};

/// Returns true for EPERM too: sandboxes without pidfd_open give it, and the kernel needs no permission.
bool meansUnsupported(int error) {
    return error == ENOSYS || error == EPERM;
}

} // namespace

std::shared_ptr<ProcessHandle> LinuxSignals::hold(qint32 pid) {
    if (pid < 1)
        return std::make_shared<NoProcess>(SignalResult::noSuchProcess);
    Pidfd process(pid);
    if (process.isOpen())
        return std::make_shared<PidfdHandle>(std::move(process));
    if (meansUnsupported(errno))
        return std::make_shared<PidHandle>(pid);
    return std::make_shared<NoProcess>(resultOf(-1));
}
