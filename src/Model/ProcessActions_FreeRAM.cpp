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

void runSecondPass(QList<Record>& records, const Handles& handles) {
    for (qsizetype i = 0; i < records.size(); ++i) {
        if (records[i].outcome != KillOutcome::denied)
            records[i].outcome = killIfPresent(*handles[i]);
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

QCoro::Task<FreeRAMResult> ProcessActions::freeRAM(QList<qint32> pids) {
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

    const auto beforeSecondPass = m_freeRAMDelays.beforeSecondPass;
    co_await QCoro::sleepFor(beforeSecondPass);
    if (!self)
        co_return result;
    runSecondPass(result.perPid, handles);

    auto nudge = m_platform.relief->reclaimMemory();
    const Outcome nudged = co_await nudge;
    result.memoryPressureSignaled = nudged.done;
    if (!self)
        co_return result;
    const auto beforeMeasuring = m_freeRAMDelays.beforeMeasuring;
    co_await QCoro::sleepFor(beforeMeasuring);
    if (!self)
        co_return result;

    const FreedMemory freed = FreedMemory::between(before, Sampler(m_platform).sample());
    result.freedBytes = freed.memoryBytes;
    result.freedSwapBytes = freed.swapBytes;
    const QString detail = logDetail(result);
    m_log.record(ActionLogEntry::Kind::quit, detail, result.freedBytes, true);
    co_return result;
}
