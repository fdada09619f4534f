#pragma once

#include "Platform/Linux/Pidfd.h"

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tools {

/// A process of this user, never a later one with its PID.
class UserProcess {
public:
    /// Returns an empty optional when the process is gone, another user's or its executable is unreadable.
    static std::optional<UserProcess> open(pid_t pid);
    pid_t pid() const { return m_pid; }
    /// Returns the parent at the time of `open`.
    pid_t parentPid() const { return m_parentPid; }
    /// Returns the start since boot, in clock ticks.
    unsigned long long startTicks() const { return m_startTicks; }
    const std::string& executable() const { return m_executable; } ///< its path

    /// Returns the executable's file name.
    std::string_view programName() const;
    /// Returns NAME of the outermost bundle NAME.app around the executable, or an empty text.
    std::string_view bundle() const;

    bool hasEnded() const { return m_handle.hasEnded(); }
    void signal(int number) const { m_handle.send(number); }

private:
    explicit UserProcess(pid_t pid);

    pid_t m_pid;
    pid_t m_parentPid = 0;
    unsigned long long m_startTicks = 0;
    Pidfd m_handle;
    std::string m_executable;
};

/// Returns the processes of this user for which `isWanted` returns true.
std::vector<UserProcess> userProcesses(const std::function<bool(const UserProcess&)>& isWanted);

} // namespace Tools
