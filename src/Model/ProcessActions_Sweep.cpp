#include "Model/ProcessActions.h"

#include "Platform/Applications.h"
#include "Platform/Identity.h"
#include "Platform/Log.h"
#include "Platform/ProcessMemory.h"
#include "Platform/Relief.h"

#include <QPointer>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

QList<qint32> pidsOf(const QList<ProcSample>& processes) {
    QList<qint32> pids;
    for (const ProcSample& process : processes)
        pids.append(process.pid);
    return pids;
}

} // namespace

NukePreview ProcessActions::previewForName(const QString& name) const {
    QList<ProcSample> named;
    NukePreview::Applications applications;
    for (const ProcSample& process : m_state.processes) {
        if (process.name != name || process.pid == m_platform.identity->processId())
            continue;
        named.append(process);
        applications.append(applicationOf(process));
    }
    NukePreview preview = NukePreview::make(name, named, applications);
    if (!preview.parentAppName) {
        preview.givesBack = givesBack(preview.pids);
        return preview;
    }
    const QList<ProcSample> owned = processesOf(*preview.parentAppName);
    setApplication(preview, owned);
    return preview;
}

/// Returns an empty optional for this program and for the processes of other users.
std::optional<QString> ProcessActions::applicationOf(const ProcSample& process) const {
    if (process.pid == m_platform.identity->processId() || process.uid != m_platform.identity->userId())
        return std::nullopt;
    if (const auto bundle = NukePreview::bundleOf(process.executablePath))
        return bundle;
    // The PID may have been reused since the last tick.
    const auto application = m_platform.applications->ofProcess(process.pid);
    return application && !m_sampler.isReplaced(process.pid) ? std::optional(application->name)
                                                             : std::nullopt;
}

std::optional<QString> ProcessActions::applicationOf(const QList<ProcSample>& processes) const {
    NukePreview::Applications applications;
    for (const ProcSample& process : processes)
        applications.append(applicationOf(process));
    return NukePreview::common(applications);
}

QList<ProcSample> ProcessActions::processesOf(const QString& application) const {
    QList<ProcSample> owned;
    for (const ProcSample& process : m_state.processes) {
        if (applicationOf(process) == application)
            owned.append(process);
    }
    return owned;
}

QList<ProcSample> ProcessActions::inTerminalsOf(const QList<ProcSample>& processes) const {
    QList<ProcSample> found;
    for (const qint32 pid : m_platform.applications->inTerminalsOf(pidsOf(processes))) {
        if (const ProcSample* sample = m_state.process(pid))
            found.append(*sample);
    }
    return found;
}

/// Sets what ends with an application, and what that gives back. Where its processes are a control group of
/// their own, the kernel has counted that.
void ProcessActions::setApplication(NukePreview& preview, const QList<ProcSample>& owned) const {
    preview.inTerminals = inTerminalsOf(owned);
    const QList<qint32> pids = pidsOf(owned);
    preview.givesBack = givesBack(pids);
    const auto group = m_platform.processMemory->controlGroup(pids.value(0));
    if (!group ||
        QSet<qint32>(group->pids.begin(), group->pids.end()) != QSet<qint32>(pids.begin(), pids.end()))
        return;
    qCDebug(Log::relief) << "control group" << group->memoryBytes << "cache" << group->cacheBytes << "sum"
                         << preview.givesBack.memoryBytes;
    preview.givesBack = {.memoryBytes = group->memoryBytes - group->cacheBytes,
                         .swapBytes = group->swapBytes};
    preview.cacheBytes = group->cacheBytes;
}

NukePreview ProcessActions::previewForApplication(const QString& application) const {
    const QList<ProcSample> owned = processesOf(application);
    NukePreview preview =
        NukePreview::make(application, owned, NukePreview::Applications(owned.size(), application));
    setApplication(preview, owned);
    return preview;
}

int ProcessActions::nuke(const NukePreview& preview) {
    // The preview may be old: a reused PID gets no signal.
    QList<qint32> same;
    for (qsizetype i = 0; i < preview.pids.size(); ++i) {
        const ProcSample* running = m_state.process(preview.pids[i]);
        if (running && running->name == preview.name && running->startTime == preview.startTimes[i])
            same.append(running->pid);
    }
    const int killed = m_gate.signalAll(same, false);
    m_log.record(ActionLogEntry::Kind::quit,
                 u"[nuke duplicates] "_s + preview.name +
                     u" — %1/%2 PIDs"_s.arg(killed).arg(preview.pids.size()),
                 0, true);
    return killed;
}

QCoro::Task<QString> ProcessActions::nukeGracefulApp(NukePreview preview, QString appName, bool force) {
    const QPointer<ProcessActions> self(this);
    auto asking = m_platform.relief->quitApplication(appName, force);
    const Outcome quit = co_await asking;
    QString outcome = preview.quitOutcome(appName, quit.done);
    if (!self)
        co_return outcome;
    const auto kind = force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit;
    const QString detail = u"[graceful quit] "_s + appName +
                           u" (%1 child PIDs targeted)"_s.arg(preview.pids.size()) +
                           (force ? u" — force"_s : QString());
    m_log.record(kind, detail, 0, quit.done);
    co_return outcome;
}
