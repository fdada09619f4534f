#include "Model/ProcessActions.h"

#include "Core/Sampling/ProcessFilter.h"
#include "Platform/Identity.h"

using namespace Qt::StringLiterals;

namespace {

bool mentions(const ProcSample& process, const QString& pattern) {
    return process.name.contains(pattern, Qt::CaseInsensitive) ||
           process.executablePath.contains(pattern, Qt::CaseInsensitive) ||
           process.arguments.contains(pattern, Qt::CaseInsensitive);
}

} // namespace

QList<ProcSample> ProcessActions::quickKillMatches(const QString& pattern, double minIdleMin,
                                                   double minRSSMB) const {
    QList<ProcSample> matches;
    if (pattern.isEmpty())
        return matches;
    const ProcessFilter filter(*m_platform.identity, minIdleMin, minRSSMB);
    for (const ProcSample& process : m_state.processes) {
        if (filter.accepts(process) && mentions(process, pattern))
            matches.append(process);
    }
    return matches;
}

int ProcessActions::previewMatches(const QString& pattern, double minIdleMin, double minRSSMB) const {
    return static_cast<int>(quickKillMatches(pattern, minIdleMin, minRSSMB).size());
}

ProcessActions::QuickKillResult ProcessActions::quickKill(const QString& pattern, const QString& label,
                                                          double minIdleMin, double minRSSMB, bool force) {
    QList<qint32> pids;
    for (const ProcSample& listed : quickKillMatches(pattern, minIdleMin, minRSSMB)) {
        const auto now = m_sampler.lookAgain(listed);
        if (now && now->uid == listed.uid && mentions(*now, pattern))
            pids.append(listed.pid);
    }
    const int matched = static_cast<int>(pids.size());
    const int killed = m_gate.signalAll(pids, force);
    m_log.record(force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit,
                 u"[quickKill] "_s + label + u" — matched=%1 killed=%2"_s.arg(matched).arg(killed), 0,
                 killed > 0 || matched == 0);
    return {.matched = matched, .killed = killed};
}
