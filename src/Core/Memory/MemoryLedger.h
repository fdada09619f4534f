#pragma once

#include "Core/Memory/MemoryFigures.h"
#include "Core/Memory/MemoryPlan.h"
#include "Core/Sampling/ProcSample.h"

#include <QFuture>
#include <QHash>
#include <QSet>
#include <QThreadPool>

#include <memory>
#include <optional>

class Clock;
class ProcessMemory;

/// What each process has in memory and in swap, shared pages divided among those that map them.
///
/// Such a figure costs up to a thousand times what a resident size costs. So the ledger reads a slice of the
/// processes each tick, on a thread of its own, at a processor time of one millisecond a tick on average (see
/// MemoryPlan), and only what was wanted since the tick before. The figures of a slice are handed out at the
/// next tick. A process that did not run since it was read and has the same resident size still has the
/// figures that were read, so it costs nothing.
class MemoryLedger {
public:
    MemoryLedger(std::shared_ptr<ProcessMemory> memory, std::shared_ptr<Clock> clock);
    /// Waits for no slice under way: a process that waits for its disk holds back whoever reads it.
    ~MemoryLedger();

    /// Wants the figures of all processes at the next tick. Views call it whenever they refresh.
    void wantAll() { m_wantsAll = true; }
    /// Wants those of these processes, before others.
    void wantOnShow(const QList<qint32>& pids) { m_onShow.unite({pids.begin(), pids.end()}); }
    /// Wants those that a person asked for: before all others, also those of more than 4 GiB.
    void wantAsked(const QList<qint32>& pids) { m_asked.unite({pids.begin(), pids.end()}); }

    /// Gives each process its figures, where these are at most two minutes old, and starts the next slice.
    /// Called once a tick with all processes. While no swap is in use, a process's own size tells its totals.
    void tick(QList<ProcSample>& processes, bool isSwapInUse);

    /// Waits for the slice under way, in tests and benchmarks only.
    void waitForSlice() { m_slice.waitForFinished(); }

private:
    struct Entry {
        Instant startTime;
        std::shared_ptr<const MemoryFigures> figures;
        quint64 residentWhenRead = 0;
        bool keptSize = false; ///< between the last two readings
        std::chrono::steady_clock::time_point readAt;
        std::chrono::steady_clock::time_point sharesReadAt;
        bool hasRun = false; ///< since it was read
        std::optional<MemoryPlan::Nanoseconds> lastCost;
        quint64 costBytes = 0;
        int repeats = 0;
        bool isRefused = false;
        quint32 tick = 0; ///< the last that listed the process
    };
    struct Result {
        qint32 pid = 0;
        bool isRefused = false; ///< all figures were; the reading has the totals
        ProcessMemoryReading reading;
    };
    using Slice = QFuture<QList<Result>>;

    void takeOver(const QList<Result>& results);
    void enter(Entry& entry, const Result& result);
    void learnCost(const Entry& entry, MemoryPlan::Nanoseconds cost);
    void handOut(QList<ProcSample>& processes);
    bool hasTotals(const ProcSample& process) const { return !m_isSwapInUse && process.anonymousBytes; }
    void follow(Entry& entry, const ProcSample& process) const;
    bool isWanted(qint32 pid) const;
    QList<MemoryPlan::Process> wanted(const QList<ProcSample>& processes) const;
    void startSlice(const QList<ProcSample>& processes);
    void read(const QList<MemoryPlan::Reading>& readings, const QList<ProcSample>& processes);
    static Result resultOf(ProcessMemory& memory, const MemoryPlan::Reading& wanted);

    std::shared_ptr<ProcessMemory> m_memory;
    std::shared_ptr<Clock> m_clock;
    QHash<qint32, Entry> m_entries;
    QSet<qint32> m_onShow;
    QSet<qint32> m_asked;
    bool m_wantsAll = false;
    bool m_isSwapInUse = true;
    MemoryPlan::Nanoseconds m_credit; ///< negative after a dear reading
    MemoryPlan::Costs m_costs;
    std::chrono::steady_clock::time_point m_now;
    std::chrono::steady_clock::time_point m_plannedAt;
    quint32 m_tick = 0;
    std::unique_ptr<QThreadPool> m_pool = std::make_unique<QThreadPool>(); ///< of one thread
    Slice m_slice;
};
