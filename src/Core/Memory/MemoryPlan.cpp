#include "Core/Memory/MemoryPlan.h"

#include <algorithm>
#include <cmath>

namespace MemoryPlan {
namespace {

constexpr Nanoseconds totalsCost = std::chrono::microseconds(15);
constexpr Nanoseconds leastCost = std::chrono::microseconds(40); // opening, and the mappings of any process
constexpr quint64 MiB = 1 << 20;
constexpr quint64 smallBytes = 8 * MiB; // read by its totals at first
constexpr int maxRepeats = 9;           // of the totals, while the process keeps its size
constexpr double freshSeconds = 5;      // on show
constexpr double dueSeconds = 10;

/// In the order of reading. What is settled is not read.
enum class Urgency { asked, onShow, unread, grown, due, rough, settled };

struct Candidate {
    Urgency urgency = Urgency::settled;
    quint64 residentBytes = 0;
    double ageSeconds = 0;
    Reading reading;
    Nanoseconds cost{};
};

bool isTooLarge(const Process& process) {
    return process.residentBytes > maxUnaskedBytes && !process.isAsked;
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
    if (process.ageSeconds > dueSeconds)
        return Urgency::due;
    return isRough ? Urgency::rough : Urgency::settled;
}

/// Returns whether all figures are wanted, and not the totals alone.
bool wantsAll(const Process& process, Urgency urgency) {
    if (process.isRefused || isTooLarge(process))
        return false;
    if (urgency == Urgency::unread)
        return process.residentBytes >= smallBytes;
    const bool mayRepeat = process.lastCost && process.repeats < maxRepeats &&
                           !hasChangedSize(process.residentBytes, process.residentWhenRead);
    return urgency == Urgency::asked || !mayRepeat;
}

Candidate candidateOf(const Process& process, Nanoseconds perMiB) {
    const Urgency urgency = urgencyOf(process);
    const bool all = wantsAll(process, urgency);
    return {.urgency = urgency,
            .residentBytes = process.residentBytes,
            .ageSeconds = process.ageSeconds,
            .reading = {.pid = process.pid, .all = all},
            .cost = all ? expectedCost(process, perMiB) : totalsCost};
}

bool comesBefore(const Candidate& a, const Candidate& b) {
    if (a.urgency != b.urgency)
        return a.urgency < b.urgency;
    return a.urgency == Urgency::due ? a.ageSeconds > b.ageSeconds : a.residentBytes > b.residentBytes;
}

/// Returns those that are not settled in the order of reading, with the oldest `dueCount` of what is due.
QList<Candidate> candidatesIn(const QList<Process>& processes, Nanoseconds perMiB, qsizetype dueCount) {
    QList<Candidate> candidates;
    for (const Process& process : processes) {
        const Candidate candidate = candidateOf(process, perMiB);
        if (candidate.urgency != Urgency::settled)
            candidates.append(candidate);
    }
    std::ranges::stable_sort(candidates, comesBefore);
    const auto due = std::ranges::equal_range(candidates, Urgency::due, {}, &Candidate::urgency);
    const auto first = due.begin() + std::min<qsizetype>(dueCount, std::ranges::ssize(due));
    candidates.erase(first, due.end());
    return candidates;
}

/// Appends the readings of one kind until one exceeds the credit, which then grows for it. Returns their
/// cost.
Nanoseconds take(const QList<Candidate>& candidates, bool all, Nanoseconds credit, bool mayExceed,
                 QList<Reading>& readings) {
    Nanoseconds spent{};
    for (const Candidate& candidate : candidates) {
        if (candidate.reading.all != all)
            continue;
        const bool isFirst = spent == Nanoseconds();
        if (spent + candidate.cost > credit && !(isFirst && mayExceed))
            break;
        readings.append(candidate.reading);
        spent += candidate.cost;
    }
    return spent;
}

} // namespace

bool hasChangedSize(quint64 residentBytes, quint64 residentWhenRead) {
    const quint64 larger = std::max(residentBytes, residentWhenRead);
    return larger - std::min(residentBytes, residentWhenRead) > std::max(MiB, larger / 20);
}

Nanoseconds expectedCost(const Process& process, Nanoseconds perMiB) {
    const auto mebibytes = static_cast<double>(process.residentBytes) / static_cast<double>(MiB);
    const auto bySize = Nanoseconds(static_cast<qint64>(mebibytes * static_cast<double>(perMiB.count())));
    if (!process.lastCost || process.costBytes == 0)
        return leastCost + bySize;
    const double growth = static_cast<double>(process.residentBytes) / static_cast<double>(process.costBytes);
    return Nanoseconds(static_cast<qint64>(static_cast<double>(process.lastCost->count()) * growth));
}

QList<Reading> slice(const QList<Process>& processes, Nanoseconds credit, Nanoseconds perMiB,
                     double secondsSinceLast) {
    const double turns = std::min(1.0, secondsSinceLast / turnSeconds);
    const auto dueCount = static_cast<qsizetype>(std::ceil(turns * static_cast<double>(processes.size())));
    const QList<Candidate> candidates = candidatesIn(processes, perMiB, dueCount);
    QList<Reading> readings;
    const bool isFull = credit >= maxCredit;
    const Nanoseconds forTotals = credit * 3 / 4; // so that small processes wait for no large one
    const Nanoseconds spent = take(candidates, false, forTotals, false, readings);
    take(candidates, true, credit - spent, isFull, readings);
    return readings;
}

} // namespace MemoryPlan
