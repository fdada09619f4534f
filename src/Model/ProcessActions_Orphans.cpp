#include "Model/ProcessActions.h"

#include "Core/Mcp/ServerWatch.h"
#include "Core/Sampling/ProcessFilter.h"
#include "Platform/Identity.h"

using namespace Qt::StringLiterals;

/// Returns the processes of the last tick, with the orphans and their ancestors as they are now. One that has
/// ended is left out.
QList<ProcSample> ProcessActions::reinspectedOrphans() const {
    QHash<qint32, std::optional<ProcSample>> now;
    const auto look = [&](const ProcSample* listed) {
        while (listed && !now.contains(listed->pid)) {
            const auto again = m_sampler.lookAgain(*listed);
            now.insert(listed->pid, again);
            listed = again ? m_state.process(again->parentPid) : nullptr;
        }
    };
    for (const MCPInspector::LiveServer& server : m_state.mcpReport.live) {
        if (server.isOrphan)
            look(m_state.process(server.pid));
    }
    QList<ProcSample> processes;
    for (const ProcSample& listed : m_state.processes) {
        const auto again = now.constFind(listed.pid);
        if (again == now.cend())
            processes.append(listed);
        else if (*again)
            processes.append(**again);
    }
    return processes;
}

int ProcessActions::killOrphanMCPs(bool force) {
    const ProcessFilter filter(*m_platform.identity);
    const auto isMine = [&](const ProcessIdentity& identity) {
        const ProcSample* running = m_state.process(identity.pid);
        return running && running->identity() == identity && filter.accepts(*running);
    };
    int orphans = 0;
    int killed = 0;
    for (const MCPInspector::LiveServer& server : m_servers.lookAt(reinspectedOrphans())) {
        if (!server.isOrphan || !isMine(server.identity()))
            continue;
        ++orphans;
        killed += signalServer(server, force);
    }
    m_log.record(force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit,
                 u"[orphan MCPs] killed=%1/%2"_s.arg(killed).arg(orphans), 0, true);
    return killed;
}

/// Signals the server first, because its launchers end with it. Returns how many servers were signalled.
int ProcessActions::signalServer(const MCPInspector::LiveServer& server, bool force) {
    const ProcSample* running = m_state.process(server.pid);
    if (!running || running->identity() != server.identity())
        return 0;
    const int signalled = m_gate.signalAll({server.pid}, force);
    for (const ProcessIdentity& launcher : server.launchers) {
        const ProcSample* listed = m_state.process(launcher.pid);
        if (listed && listed->identity() == launcher)
            m_gate.signalAll({launcher.pid}, force);
    }
    return signalled;
}

void ProcessActions::quitServer(const MCPInspector::LiveServer& server) {
    signalServer(server, false);
}
