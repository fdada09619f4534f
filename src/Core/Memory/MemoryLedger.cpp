#include "Core/Memory/MemoryLedger.h"

#include "Platform/Clock.h"

#include <QPromise>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr auto maxAge = std::chrono::minutes(2);
constexpr auto confirmedAfter = std::chrono::seconds(40); // within the minute that a figure may be old
constexpr MemoryPlan::Nanoseconds maxSavings =
    33 * MemoryPlan::creditPerTick; // so that first figures come soon
constexpr MemoryPlan::Nanoseconds handOverCost = std::chrono::microseconds(150); // to the thread and back
constexpr quint64 leastTellingBytes = 16 << 20; // below it a cost says little about the cost of a page

MemoryPlan::Nanoseconds average(MemoryPlan::Nanoseconds past, MemoryPlan::Nanoseconds present) {
    return (past * 7 + present) / 8;
}

/// Keeps a pool for good: it would wait for its thread, which may wait for a process and its disk.
void leave(std::unique_ptr<QThreadPool> pool) {
    static auto* const left = new std::vector<std::unique_ptr<QThreadPool>>;
    left->push_back(std::move(pool));
}

} // namespace

MemoryLedger::MemoryLedger(std::shared_ptr<ProcessMemory> memory, std::shared_ptr<Clock> clock)
    : m_memory(std::move(memory))
    , m_clock(std::move(clock))
    , m_credit(maxSavings) {
    m_pool->setMaxThreadCount(1);
}

MemoryLedger::~MemoryLedger() {
    m_slice.cancel();
    if (!m_pool->waitForDone(0))
        leave(std::move(m_pool));
}

void MemoryLedger::tick(QList<ProcSample>& processes, bool isSwapInUse) {
    m_isSwapInUse = isSwapInUse;
    m_now = m_clock->uptime();
    ++m_tick;
    const bool isReading = m_slice.isValid() && !m_slice.isFinished();
    if (m_slice.isValid() && m_slice.isFinished())
        takeOver(std::exchange(m_slice, Slice()).takeResult());
    handOut(processes);
    m_credit = std::min(maxSavings, m_credit + MemoryPlan::creditPerTick);
    if (!isReading && (m_wantsAll || !m_onShow.isEmpty() || !m_asked.isEmpty()))
        startSlice(processes);
    m_wantsAll = false;
    m_onShow.clear();
    m_asked.clear();
}

void MemoryLedger::takeOver(const QList<Result>& results) {
    for (const Result& result : results) {
        m_credit -= result.reading.cost;
        const auto entry = m_entries.find(result.pid);
        if (entry != m_entries.end())
            enter(*entry, result);
    }
}

void MemoryLedger::enter(Entry& entry, const Result& result) {
    entry.isRefused |= result.isRefused;
    entry.readAt = m_now;
    if (!result.reading.use)
        return;
    MemoryFigures figures{.use = *result.reading.use, .readAt = m_now, .isRefused = entry.isRefused};
    if (!figures.isProportional() && !result.isRefused)
        m_costs.totals = average(m_costs.totals, result.reading.cost);
    if (figures.isProportional()) {
        learnCost(entry, result.reading.cost);
        entry.sharesReadAt = m_now;
        entry.lastCost = result.reading.cost;
        entry.costBytes = entry.residentWhenRead;
        entry.repeats = 0;
    } else if (entry.figures && entry.figures->isProportional() && entry.keptSize) {
        ++entry.repeats;
        figures.use = entry.figures->use; // the shares go on
        figures.use.anonymousBytes = result.reading.use->anonymousBytes;
        figures.use.swapBytes = result.reading.use->swapBytes;
    }
    entry.figures = std::make_shared<const MemoryFigures>(figures);
}

void MemoryLedger::learnCost(const Entry& entry, MemoryPlan::Nanoseconds cost) {
    if (entry.residentWhenRead < leastTellingBytes)
        return;
    const auto mebibytes = static_cast<qint64>(entry.residentWhenRead >> 20);
    m_costs.perMiB = average(m_costs.perMiB, cost / mebibytes);
}

void MemoryLedger::handOut(QList<ProcSample>& processes) {
    if (m_entries.isEmpty() && !m_wantsAll && m_onShow.isEmpty() && m_asked.isEmpty())
        return;
    for (ProcSample& process : processes) {
        const auto found = m_entries.find(process.pid);
        if (found == m_entries.end())
            continue;
        if (found->startTime != process.startTime ||
            (found->figures && m_now - found->figures->readAt > maxAge))
            continue; // leaves the entry to be forgotten
        found->tick = m_tick;
        follow(*found, process);
        process.memory = found->figures;
    }
    m_entries.removeIf([this](const auto& entry) { return entry->tick != m_tick; });
}

/// Notes whether the process may have changed, and confirms the figures that are still true.
void MemoryLedger::follow(Entry& entry, const ProcSample& process) const {
    entry.hasRun |= process.cpuPercent > 0 || process.rssBytes != entry.residentWhenRead;
    const bool isTrue =
        !entry.hasRun ||
        (hasTotals(process) && !MemoryPlan::hasChangedSize(process.rssBytes, entry.residentWhenRead));
    const bool isDue = entry.figures && (m_now - entry.figures->readAt >= confirmedAfter ||
                                         (hasTotals(process) && !entry.figures->use.anonymousBytes));
    if (!isTrue || !isDue || !isWanted(process.pid))
        return;
    MemoryFigures confirmed = *entry.figures;
    confirmed.readAt = m_now;
    if (hasTotals(process)) {
        confirmed.use.anonymousBytes = process.anonymousBytes;
        confirmed.use.swapBytes = 0;
    }
    entry.figures = std::make_shared<const MemoryFigures>(confirmed);
}

bool MemoryLedger::isWanted(qint32 pid) const {
    return m_wantsAll || m_onShow.contains(pid) || m_asked.contains(pid);
}

QList<MemoryPlan::Process> MemoryLedger::wanted(const QList<ProcSample>& processes) const {
    QList<MemoryPlan::Process> result;
    for (const ProcSample& process : processes) {
        if (!isWanted(process.pid))
            continue;
        MemoryPlan::Process known{.pid = process.pid,
                                  .residentBytes = process.rssBytes,
                                  .hasTotals = hasTotals(process),
                                  .isOnShow = m_onShow.contains(process.pid),
                                  .isAsked = m_asked.contains(process.pid)};
        const auto entry = m_entries.constFind(process.pid);
        if (entry != m_entries.cend()) {
            known.residentWhenRead = entry->residentWhenRead;
            const auto secondsSince = [this](auto time) {
                return std::chrono::duration<double>(m_now - time).count();
            };
            known.ageSeconds = entry->hasRun || !entry->figures ? secondsSince(entry->readAt) : 0;
            known.sharesAgeSeconds = secondsSince(entry->sharesReadAt);
            known.lastCost = entry->lastCost;
            known.costBytes = entry->costBytes;
            known.repeats = entry->repeats;
            known.isRefused = entry->isRefused;
        }
        result.append(known);
    }
    return result;
}

void MemoryLedger::startSlice(const QList<ProcSample>& processes) {
    const std::chrono::duration<double> sinceLast = m_now - std::exchange(m_plannedAt, m_now);
    const auto readings = MemoryPlan::slice(wanted(processes), std::min(m_credit, MemoryPlan::maxCredit),
                                            m_costs, sinceLast.count());
    if (!readings.isEmpty())
        read(readings, processes);
    m_credit -= m_clock->uptime() - m_now + handOverCost; // planning costs as well
}

void MemoryLedger::read(const QList<MemoryPlan::Reading>& readings, const QList<ProcSample>& processes) {
    QSet<qint32> pids;
    for (const MemoryPlan::Reading& reading : readings)
        pids.insert(reading.pid);
    for (const ProcSample& process : processes) {
        if (!pids.contains(process.pid))
            continue;
        Entry& entry = m_entries[process.pid];
        entry.startTime = process.startTime;
        entry.tick = m_tick;
        entry.keptSize = !MemoryPlan::hasChangedSize(process.rssBytes, entry.residentWhenRead);
        entry.residentWhenRead = process.rssBytes;
        entry.hasRun = false;
    }
    const auto promise = std::make_shared<QPromise<QList<Result>>>();
    m_slice = promise->future();
    promise->start();
    m_pool->start([promise, memory = m_memory, readings] {
        QList<Result> results;
        for (const MemoryPlan::Reading& reading : readings) {
            if (promise->isCanceled())
                break;
            results.append(resultOf(*memory, reading));
        }
        promise->addResult(results);
        promise->finish();
    });
}

MemoryLedger::Result MemoryLedger::resultOf(ProcessMemory& memory, const MemoryPlan::Reading& wanted) {
    Result result{.pid = wanted.pid};
    if (wanted.all) {
        result.reading = memory.readAll(wanted.pid);
        if (result.reading.use)
            return result;
        result.isRefused = true;
        if (wanted.hasTotals) {
            result.reading.use = ProcessMemoryUse();
            return result;
        }
    }
    const auto spent = result.reading.cost;
    result.reading = memory.readTotals(wanted.pid);
    result.reading.cost += spent;
    return result;
}
