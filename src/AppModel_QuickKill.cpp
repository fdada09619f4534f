#include "AppModel.h"

#include "Core/Sampling/ProcessFilter.h"
#include "Platform/Identity.h"

using namespace Qt::StringLiterals;

namespace {

bool holds(const ProcSample& process, const QString& pattern) {
    return process.name.contains(pattern, Qt::CaseInsensitive) ||
           process.executablePath.contains(pattern, Qt::CaseInsensitive) ||
           process.arguments.contains(pattern, Qt::CaseInsensitive);
}

} // namespace

QList<ProcSample> AppModel::quickKillMatches(const QString& pattern, double minIdleMin,
                                             double minRSSMB) const {
    QList<ProcSample> matches;
    if (pattern.isEmpty())
        return matches;
    const ProcessFilter filter(*m_platform.identity, minIdleMin, minRSSMB);
    for (const ProcSample& process : m_processes) {
        if (filter.accepts(process) && holds(process, pattern))
            matches.append(process);
    }
    return matches;
}

int AppModel::previewMatches(const QString& pattern, double minIdleMin, double minRSSMB) const {
    return static_cast<int>(quickKillMatches(pattern, minIdleMin, minRSSMB).size());
}

AppModel::QuickKillResult AppModel::quickKill(const QString& pattern, const QString& label, double minIdleMin,
                                              double minRSSMB, bool force) {
    QList<qint32> pids;
    for (const ProcSample& listed : quickKillMatches(pattern, minIdleMin, minRSSMB)) {
        const auto now = m_sampler.lookAgain(listed);
        if (now && now->uid == listed.uid && holds(*now, pattern))
            pids.append(listed.pid);
    }
    const int matched = static_cast<int>(pids.size());
    const int killed = signalAll(pids, force);
    record(force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit,
           u"[quickKill] "_s + label + u" — matched=%1 killed=%2"_s.arg(matched).arg(killed), 0,
           killed > 0 || matched == 0);
    return {.matched = matched, .killed = killed};
}
