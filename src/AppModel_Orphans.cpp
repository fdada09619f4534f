#include "AppModel.h"

#include "Core/ProcessFilter.h"
#include "Platform/Identity.h"

using namespace Qt::StringLiterals;

int AppModel::killOrphanMCPs(bool force) {
    const ProcessFilter filter(*m_platform.identity);
    QList<qint32> orphans;
    for (const MCPInspector::LiveServer& server : m_mcpReport.live) {
        const ProcSample* running = process(server.pid);
        if (server.isOrphan && running && filter.accepts(*running))
            orphans.append(server.pid);
    }
    const int killed = signalAll(orphans, force);
    record(force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit,
           u"[orphan MCPs] killed=%1/%2"_s.arg(killed).arg(orphans.size()), 0, true);
    return killed;
}

void AppModel::setAutoOptimizeEnabled(bool enabled) {
    publish(m_autoOptimizeEnabled, enabled);
    autoOptimizer().setEnabled(enabled);
}

AutoOptimizer& AppModel::autoOptimizer() {
    if (!m_autoOptimizer)
        m_autoOptimizer = std::make_unique<AutoOptimizer>(*this, m_platform.tools);
    return *m_autoOptimizer;
}
