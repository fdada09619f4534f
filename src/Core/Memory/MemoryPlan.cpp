#include "Core/Memory/MemoryPlan.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace MemoryPlan {
namespace {

constexpr Nanoseconds leastCost = std::chrono::microseconds(40); // opening, and the mappings of any process
constexpr quint64 MiB = 1 << 20;
constexpr quint64 smallBytes = 8 * MiB; // read by its totals at first
constexpr int maxRepeats = 9;           // of the totals, while the process keeps its size
constexpr double maxSharesAgeSeconds = (maxRepeats + 1) * turnSeconds;
constexpr double freshSeconds = 5; // on show
constexpr double dueSeconds = 10;

/// In the order of reading. What is settled is not read.
enum class Urgency { asked, onShow, unread, grown, rough, due, settled };

struct Candidate {
    Urgency urgency = Urgency::settled;
    quint64 residentBytes = 0;
    double ageSeconds = 0;
    qint32 pid = 0;
    Nanoseconds cost{};
    bool hasTotals = false;
};
using Candidates = QList<Candidate>;

bool isTooLarge(const Process& process) {
    return process.residentBytes > maxUnaskedBytes && !process.isAsked;
}

/// Others that map the same pages may have ended meanwhile.
bool hasOldShares(const Process& process) {
    return process.lastCost && !isTooLarge(process) && process.sharesAgeSeconds > maxSharesAgeSeconds;
}

Urgency urgencyOf(const Process& process) {
    const bool isStale = process.ageSeconds > freshSeconds;
    const bool isRough = !process.lastCost && !process.isRefused && !isTooLarge(process);
    if (process.isAsked && (isStale || isRough))
        return Urgency::asked;
    if (process.isOnShow && (isStale || isRough))
        return Urgency::onShow;
    if (std::isinf(process.ageSeconds))
        return Urgency::unread;
    if (hasChangedSize(process.residentBytes, process.residentWhenRead))
        return Urgency::grown;
    if (isRough)
        return Urgency::rough;
    return process.ageSeconds > dueSeconds || hasOldShares(process) ? Urgency::due : Urgency::settled;
}

/// Returns whether all figures are wanted, and not the totals alone.
bool wantsAll(const Process& process, Urgency urgency) {
    if (process.isRefused || isTooLarge(process))
        return false;
    if (urgency == Urgency::unread)
        return process.residentBytes >= smallBytes || process.hasTotals;
    const bool mayRepeat = process.lastCost && process.repeats < maxRepeats && !hasOldShares(process) &&
                           !hasChangedSize(process.residentBytes, process.residentWhenRead);
    return urgency == Urgency::asked || !mayRepeat;
}

bool comesBefore(const Candidate& a, const Candidate& b) {
    if (a.urgency != b.urgency)
        return a.urgency < b.urgency;
    return a.urgency == Urgency::due ? a.ageSeconds > b.ageSeconds : a.residentBytes > b.residentBytes;
}

/// Returns the processes that want all their figures, in the order of reading.
Candidates wholeIn(const QList<Process>& processes, const Costs& costs) {
    Candidates whole;
    for (const Process& process : processes) {
        const Urgency urgency = urgencyOf(process);
        if (urgency != Urgency::settled && wantsAll(process, urgency))
            whole.append({urgency, process.residentBytes, process.ageSeconds, process.pid,
                          expectedCost(process, costs), process.hasTotals});
    }
    std::ranges::stable_sort(whole, comesBefore);
    return whole;
}

/// Returns those whose totals are worth a reading: that have none, that do not get more, and the oldest
/// `dueCount` of what is due. Totals are good enough until there is credit for all figures.
Candidates totalsIn(const QList<Process>& processes, const Costs& costs, qsizetype dueCount) {
    Candidates totals;
    for (const Process& process : processes) {
        if (process.hasTotals)
            continue;
        Urgency urgency = urgencyOf(process);
        const bool isDue = process.ageSeconds > dueSeconds;
        if (urgency > Urgency::unread && (isDue || wantsAll(process, urgency)))
            urgency = isDue ? Urgency::due : Urgency::settled;
        if (urgency != Urgency::settled)
            totals.append({urgency, process.residentBytes, process.ageSeconds, process.pid, costs.totals});
    }
    std::ranges::stable_sort(totals, comesBefore);
    const auto due = std::ranges::equal_range(totals, Urgency::due, {}, &Candidate::urgency);
    totals.erase(due.begin() + std::min<qsizetype>(dueCount, std::ranges::ssize(due)), due.end());
    return totals;
}

/// Cuts the candidates to those that fit into the credit, up to the first that does not: the credit then
/// grows for it. Returns their cost.
Nanoseconds cut(Candidates& candidates, Nanoseconds credit, bool mayExceed) {
    Nanoseconds spent{};
    qsizetype count = 0;
    for (; count < candidates.size(); ++count) {
        const bool fits = spent + candidates[count].cost <= credit || (count == 0 && mayExceed);
        if (!fits)
            break;
        spent += candidates[count].cost;
    }
    candidates.resize(count);
    return spent;
}

} // namespace

bool hasChangedSize(quint64 residentBytes, quint64 residentWhenRead) {
    const quint64 larger = std::max(residentBytes, residentWhenRead);
    return larger - std::min(residentBytes, residentWhenRead) > std::max(MiB, larger / 20);
}

Nanoseconds expectedCost(const Process& process, const Costs& costs) {
    const auto mebibytes = static_cast<double>(process.residentBytes) / static_cast<double>(MiB);
    const auto bySize =
        Nanoseconds(static_cast<qint64>(mebibytes * static_cast<double>(costs.perMiB.count())));
    if (!process.lastCost || process.costBytes == 0)
        return leastCost + bySize;
    const double growth = static_cast<double>(process.residentBytes) / static_cast<double>(process.costBytes);
    return Nanoseconds(static_cast<qint64>(static_cast<double>(process.lastCost->count()) * growth));
}

QList<Reading> slice(const QList<Process>& processes, Nanoseconds credit, const Costs& costs,
                     double secondsSinceLast) {
    const double turns = std::min(1.0, secondsSinceLast / turnSeconds);
    const auto dueCount = static_cast<qsizetype>(std::ceil(turns * static_cast<double>(processes.size())));
    Candidates totals = totalsIn(processes, costs, dueCount);
    const Nanoseconds spent = cut(totals, credit * 4 / 5, false);
    Candidates whole = wholeIn(processes, costs);
    cut(whole, credit - spent, credit >= maxCredit);
    QSet<qint32> wholePids;
    for (const Candidate& candidate : whole)
        wholePids.insert(candidate.pid);
    QList<Reading> readings;
    for (const Candidate& candidate : totals) {
        if (!wholePids.contains(candidate.pid))
            readings.append({.pid = candidate.pid, .all = false});
    }
    for (const Candidate& candidate : whole)
        readings.append({.pid = candidate.pid, .all = true, .hasTotals = candidate.hasTotals});
    return readings;
}

} // namespace MemoryPlan
