#include "Core/Sessions/Session.h"

#include "Core/Sampling/ProgramPath.h"

#include <QCoreApplication>

#include <algorithm>

QString Session::project() const {
    return ProgramPath::withTilde(folder);
}

QList<qint32> Session::pids() const {
    QList<qint32> pids;
    for (const SessionProcess& each : processes)
        pids.append(each.process.pid);
    return pids;
}

QString Session::title() const {
    return folder.isEmpty() ? agent
                            : QCoreApplication::translate("Session", "%1 in %2").arg(agent, project());
}

QString Session::titleForLog() const {
    return folder.isEmpty() ? agent : QStringLiteral("%1 in %2").arg(agent, project());
}

SummedMemory SessionReport::memory() const {
    SummedMemory sum;
    for (const Session& session : sessions) {
        for (const SessionProcess& member : session.processes)
            sum.add(member.process);
    }
    return sum;
}

int SessionReport::idleCount() const {
    return static_cast<int>(std::ranges::count(sessions, SessionState::idle, &Session::state));
}
