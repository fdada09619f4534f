#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QHash>
#include <QList>

#include <optional>

/// Why the end of a process takes more with it than a person may expect.
enum class Protection {
    machine,  ///< the first process of the system
    display,  ///< it draws the screen
    login,    ///< it holds the login: its leader, its session manager, its message bus
    services, ///< it runs the services of the login
    starter   ///< this program was started from it
};

/// The processes that no single press may end.
class ProtectedProcesses {
public:
    ProtectedProcesses() = default;
    /// `ownPid` is that of this program, and `displayServers` draw its windows, whatever they are called.
    ProtectedProcesses(const QList<ProcSample>& processes, qint32 ownPid,
                       const QList<qint32>& displayServers = {});

    std::optional<Protection> of(qint32 pid) const {
        const auto found = m_reasons.constFind(pid);
        return found == m_reasons.cend() ? std::nullopt : std::optional(*found);
    }
    bool contains(qint32 pid) const { return m_reasons.contains(pid); }

    /// Returns a sentence about what ends with such a process.
    static QString consequence(Protection reason);

private:
    void addAncestors(const QHash<qint32, qint32>& parents, qint32 pid, Protection reason);

    QHash<qint32, Protection> m_reasons; ///< by PID
};

/// Returns all processes below this one, at any depth, in the order of the list.
QList<ProcSample> descendantsOf(const ProcSample& process, const QList<ProcSample>& processes);
