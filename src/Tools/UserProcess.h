#pragma once

#include "Platform/Linux/Pidfd.h"

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tools {

/// A process of this user, and no other that has its id by now.
class UserProcess {
public:
    /// Nothing for a process that is gone, is another user's or does not show its executable.
    static std::optional<UserProcess> open(pid_t pid);
    pid_t pid() const { return m_pid; }
    /// As it was when the process was opened.
    pid_t parentPid() const { return m_parentPid; }
    /// Since boot, in clock ticks.
    unsigned long long startTicks() const { return m_startTicks; }
    /// The path of the program it runs.
    const std::string& executable() const { return m_executable; }

    /// Its program's file name.
    std::string_view programName() const;
    /// The outermost bundle NAME.app that it runs from, without the ending; empty outside any.
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

/// The processes of this user that `isWanted`.
std::vector<UserProcess> userProcesses(const std::function<bool(const UserProcess&)>& isWanted);

} // namespace Tools
