#include "AppModel.h"

#include "Core/Sampling/ProcessFilter.h"
#include "Platform/Identity.h"

using namespace Qt::StringLiterals;

/// The processes of the last tick, those that the rule looks at as they are now: each orphan, its launchers
/// and all above them. One that has gone is left out.
QList<ProcSample> AppModel::orphansLookedAtAgain() const {
    QHash<qint32, std::optional<ProcSample>> now;
    const auto look = [&](const ProcSample* listed) {
        while (listed && !now.contains(listed->pid)) {
            const auto again = m_sampler.lookAgain(*listed);
            now.insert(listed->pid, again);
            listed = again ? process(again->parentPid) : nullptr;
        }
    };
    for (const MCPInspector::LiveServer& server : m_mcpReport.live) {
        if (server.isOrphan)
            look(process(server.pid));
    }
    QList<ProcSample> processes;
    for (const ProcSample& listed : m_processes) {
        const auto again = now.constFind(listed.pid);
        if (again == now.cend())
            processes.append(listed);
        else if (*again)
            processes.append(**again);
    }
    return processes;
}

int AppModel::killOrphanMCPs(bool force) {
    const ProcessFilter filter(*m_platform.identity);
    const auto isMine = [&](const ProcessIdentity& identity) {
        const ProcSample* running = process(identity.pid);
        return running && running->identity() == identity && filter.accepts(*running);
    };
    int orphans = 0;
    int killed = 0;
    for (const MCPInspector::LiveServer& server : m_servers.lookAt(orphansLookedAtAgain())) {
        if (!server.isOrphan || !isMine(server.identity()))
            continue;
        ++orphans;
        killed += signalServer(server, force);
    }
    record(force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit,
           u"[orphan MCPs] killed=%1/%2"_s.arg(killed).arg(orphans), 0, true);
    return killed;
}

/// The server first: its launchers end by themselves once it has. How many servers were signalled.
int AppModel::signalServer(const MCPInspector::LiveServer& server, bool force) {
    const ProcSample* running = process(server.pid);
    if (!running || running->identity() != server.identity())
        return 0;
    const int signalled = signalAll({server.pid}, force);
    for (const ProcessIdentity& launcher : server.launchers) {
        const ProcSample* listed = process(launcher.pid);
        if (listed && listed->identity() == launcher)
            signalAll({launcher.pid}, force);
    }
    return signalled;
}

void AppModel::quitServer(const MCPInspector::LiveServer& server) {
    signalServer(server, false);
}

void AppModel::setAutoOptimizeEnabled(bool enabled) {
    publish(m_autoOptimizeEnabled, enabled);
    autoOptimizer().setEnabled(enabled);
}

AutoOptimizer& AppModel::autoOptimizer() {
    if (!m_autoOptimizer)
        m_autoOptimizer = std::make_unique<AutoOptimizer>(*this, m_platform.relief);
    return *m_autoOptimizer;
}
