#include "Core/Sessions/Session.h"

#include "Core/Sampling/ProgramPath.h"

#include <QCoreApplication>

#include <algorithm>

QString Session::project() const {
    return ProgramPath::withTilde(folder);
}

QString Session::title() const {
    return folder.isEmpty() ? agent
                            : QCoreApplication::translate("Session", "%1 in %2").arg(agent, project());
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
