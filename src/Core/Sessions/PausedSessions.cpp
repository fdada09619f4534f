#include "Core/Sessions/PausedSessions.h"

#include "Platform/Signals.h"

#include <QSet>

#include <algorithm>

namespace {

qsizetype send(const QList<PausedSessions::Process>& processes, Signal signal) {
    return std::ranges::count_if(processes, [signal](const PausedSessions::Process& process) {
        return process.handle->send(signal) == SignalResult::delivered;
    });
}

} // namespace

qsizetype PausedSessions::pause(const ProcessIdentity& host, const QList<Process>& processes) {
    // Of an earlier pause, or of an earlier host with that PID.
    send(m_sessions.take(host.pid).processes, Signal::resume);
    const qsizetype stopped = send(processes, Signal::pause);
    if (stopped > 0)
        m_sessions.insert(host.pid, {.startTime = host.startTime, .processes = processes});
    return stopped;
}

qsizetype PausedSessions::resume(const ProcessIdentity& host) {
    return contains(host) ? send(m_sessions.take(host.pid).processes, Signal::resume) : 0;
}

void PausedSessions::resumeAll() {
    for (const Session& session : std::as_const(m_sessions))
        send(session.processes, Signal::resume);
    m_sessions.clear();
}

bool PausedSessions::contains(const ProcessIdentity& host) const {
    const auto found = m_sessions.constFind(host.pid);
    return found != m_sessions.cend() && found->startTime == host.startTime;
}

void PausedSessions::wake(QList<ProcSample>& processes) const {
    QSet<qint32> stopped;
    for (const Session& session : m_sessions) {
        for (const Process& process : session.processes)
            stopped.insert(process.pid);
    }
    if (stopped.isEmpty())
        return;
    for (ProcSample& process : processes) {
        if (stopped.contains(process.pid))
            process.idleSeconds = 0;
    }
}
