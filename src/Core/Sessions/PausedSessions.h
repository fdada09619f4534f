#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QHash>
#include <QList>

#include <memory>

class ProcessHandle;

/// The sessions whose processes are stopped. They go on at the latest when this object ends.
class PausedSessions {
public:
    PausedSessions() = default;
    ~PausedSessions() { resumeAll(); }
    Q_DISABLE_COPY_MOVE(PausedSessions)

    struct Process {
        qint32 pid = 0;
        std::shared_ptr<ProcessHandle> handle;
    };

    /// Stops the processes and returns how many could be stopped. Those of a session that is paused go on
    /// together.
    qsizetype pause(const ProcessIdentity& host, const QList<Process>& processes);
    /// Lets the processes of a session go on, and returns how many could.
    qsizetype resume(const ProcessIdentity& host);
    void resumeAll();

    bool contains(const ProcessIdentity& host) const;
    /// Lets no stopped process count as idle.
    void wake(QList<ProcSample>& processes) const;

private:
    struct Session {
        Instant startTime; ///< of its host
        QList<Process> processes;
    };

    QHash<qint32, Session> m_sessions; ///< by the PID of the host
};
