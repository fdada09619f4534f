#include "Platform/Linux/LinuxSignals.h"

#include "Platform/Linux/ProcStat.h"
#include "Platform/Log.h"

#include <cerrno>
#include <csignal>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Of the system call that was just made.
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
    explicit PidfdHandle(int descriptor)
        : m_descriptor(descriptor) {}
    ~PidfdHandle() override { close(m_descriptor); }
    PidfdHandle(const PidfdHandle&) = delete;
    PidfdHandle& operator=(const PidfdHandle&) = delete;

    SignalResult send(Signal signal) override {
        if (hasEnded())
            return SignalResult::noSuchProcess;
        const long status =
            syscall(SYS_pidfd_send_signal, m_descriptor, static_cast<int>(signal), nullptr, 0);
        return resultOf(status);
    }

private:
    /// The kernel still delivers signals to a process that ended but was not asked about by its parent.
    bool hasEnded() const {
        pollfd ended{.fd = m_descriptor, .events = POLLIN, .revents = 0};
        return poll(&ended, 1, 0) > 0;
    }

    int m_descriptor;
};

/// Since boot, in clock ticks; empty when nobody has the id.
std::optional<quint64> startOf(qint32 pid) {
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    const auto stat = ProcStat::parse(text);
    return stat ? std::optional(stat->startTicks) : std::nullopt;
}

/// For a system without pidfd: the id means the process for as long as the start behind it is the same.
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

/// The kernel itself never refuses pidfd_open for lack of permission; a sandbox that does not know the call
/// may.
bool meansUnsupported(int error) {
    return error == ENOSYS || error == EPERM;
}

} // namespace

std::shared_ptr<ProcessHandle> LinuxSignals::hold(qint32 pid) {
    if (pid < 1)
        return std::make_shared<NoProcess>(SignalResult::noSuchProcess);
    const long descriptor = syscall(SYS_pidfd_open, pid, 0);
    if (descriptor >= 0)
        return std::make_shared<PidfdHandle>(static_cast<int>(descriptor));
    if (meansUnsupported(errno))
        return std::make_shared<PidHandle>(pid);
    return std::make_shared<NoProcess>(resultOf(descriptor));
}
