#include "Model/ProcessActions.h"

#include "Core/Memory/FreedMemory.h"
#include "Core/Sampling/ProcessFilter.h"
#include "Platform/Identity.h"
#include "Platform/Relief.h"

#include <QCoroTimer>
#include <QPointer>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Record = FreeRAMResult::Record;
using Handles = QList<std::shared_ptr<ProcessHandle>>;

constexpr qsizetype maxCandidates = 15;
/// A process of no known group is offered from a decimal gigabyte on.
constexpr quint64 largeUnknownBytes = 1'000'000'000;

constexpr std::chrono::milliseconds betweenLooks{100}; // whether to stop

/// Returns early where a stop is requested.
QCoro::Task<> wait(std::chrono::milliseconds time, std::stop_token stop) {
    do {
        const auto step = std::min(time, betweenLooks);
        co_await QCoro::sleepFor(step);
        time -= step;
    } while (time.count() > 0 && !stop.stop_requested());
}

KillOutcome lookAt(ProcessHandle& process) {
    return hasEnded(process) ? KillOutcome::quit : KillOutcome::ignored;
}

void runSecondPass(QList<Record>& records, const Handles& handles, KillOutcome (*outcomeOf)(ProcessHandle&)) {
    for (qsizetype i = 0; i < records.size(); ++i) {
        if (records[i].outcome != KillOutcome::denied)
            records[i].outcome = outcomeOf(*handles[i]);
    }
}

QString logDetail(const FreeRAMResult& result) {
    QStringList outcomes;
    for (const Record& record : result.perPid)
        outcomes.append(QString::number(record.pid) + u':' + rawValue(record.outcome));
    return u"[free RAM] "_s + outcomes.join(u',') + u" freed="_s + QString::number(result.freedBytes);
}

bool isWorthOffering(const ProcSample& process) {
    return process.group != ProcGroup::other || process.rssBytes >= largeUnknownBytes;
}

} // namespace

QList<FreeRamPreview> ProcessActions::freeRamCandidates(double minIdleMin, double minRSSMB,
                                                        bool others) const {
    const ProcessFilter filter(*m_platform.identity, minIdleMin, minRSSMB);
    QList<FreeRamPreview> candidates;
    for (const ProcSample& process : m_state.processes) {
        if (filter.accepts(process) && (others || isWorthOffering(process))) {
            candidates.append({.pid = process.pid,
                               .name = process.name,
                               .rssBytes = process.rssBytes,
                               .idleSeconds = process.idleSeconds,
                               .group = process.group,
                               .givesBack = MemoryReturn::ofEnding(process)});
        }
    }
    std::ranges::stable_sort(candidates, std::ranges::greater(), &FreeRamPreview::rssBytes);
    return candidates.mid(0, maxCandidates);
}

MemoryReturn ProcessActions::givesBack(const QList<qint32>& pids) const {
    return MemoryReturn::ofEnding(pids, m_state.processes);
}

QCoro::Task<FreeRAMResult> ProcessActions::freeRAM(QList<qint32> pids, std::stop_token stop) {
    const QPointer<ProcessActions> self(this);
    const SystemSample before = m_state.systemSample;
    FreeRAMResult result;
    result.promised = givesBack(pids);
    Handles handles;
    for (const qint32 pid : pids)
        handles.append(m_gate.hold(pid));
    for (qsizetype i = 0; i < pids.size(); ++i) {
        const ProcSample* known = m_state.process(pids[i]);
        result.perPid.append({.pid = pids[i],
                              .name = known ? known->name : u"pid %1"_s.arg(pids[i]),
                              .before = known ? known->rssBytes : 0,
                              .outcome = askToEnd(*handles[i])});
    }

    auto ending = wait(m_freeRAMDelays.beforeSecondPass, stop);
    co_await ending;
    if (!self)
        co_return result;
    result.wasStopped = stop.stop_requested();
    runSecondPass(result.perPid, handles, result.wasStopped ? lookAt : killIfPresent);

    if (!result.wasStopped) {
        auto nudge = m_platform.relief->reclaimMemory();
        const Outcome nudged = co_await nudge;
        result.memoryPressureSignaled = nudged.done;
        if (!self)
            co_return result;
    }
    auto settling = wait(m_freeRAMDelays.beforeMeasuring, stop);
    co_await settling;
    if (!self)
        co_return result;

    const FreedMemory freed = FreedMemory::between(before, Sampler(m_platform).sample());
    result.freedBytes = freed.memoryBytes;
    result.freedSwapBytes = freed.swapBytes;
    const QString detail = logDetail(result);
    m_log.record(ActionLogEntry::Kind::quit, detail, result.freedBytes, true);
    co_return result;
}
