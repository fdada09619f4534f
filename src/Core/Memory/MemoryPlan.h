#pragma once

#include <QList>

#include <chrono>
#include <limits>
#include <optional>

/// Chooses which processes the next slice of the memory ledger reads, and how.
namespace MemoryPlan {

using Nanoseconds = std::chrono::nanoseconds;

/// Of a millisecond. The rest is for what is not counted, such as page faults of the thread.
constexpr Nanoseconds creditPerTick = std::chrono::microseconds(900);
constexpr Nanoseconds maxCredit = std::chrono::milliseconds(4);
/// Everything is read again once in a turn. Each slice reads its part of it, the oldest first, so that no
/// burst of readings is followed by another a turn later.
constexpr double turnSeconds = 50;
/// Larger processes are read only when a person asks.
constexpr quint64 maxUnaskedBytes = quint64(4) << 30;

/// A process as the ledger knows it.
struct Process {
    qint32 pid = 0;
    quint64 residentBytes = 0;
    quint64 residentWhenRead = 0;                                ///< at the last reading of any kind
    double ageSeconds = std::numeric_limits<double>::infinity(); ///< of the last reading; 0 if it did not run
    double sharesAgeSeconds = 0;                                 ///< of the last reading of all figures
    std::optional<Nanoseconds> lastCost;                         ///< of the last reading of all figures
    quint64 costBytes = 0;                                       ///< its resident size then
    int repeats = 0;                                             ///< readings of the totals alone since then
    bool hasTotals = false;                                      ///< without a reading
    bool isRefused = false;                                      ///< all figures were refused
    bool isOnShow = false;
    bool isAsked = false; ///< by a person
};

/// Returns whether the process grew or shrank so much since it was read that its figures are no longer true.
bool hasChangedSize(quint64 residentBytes, quint64 residentWhenRead);

struct Reading {
    qint32 pid = 0;
    bool all = false;       ///< every figure, else the totals
    bool hasTotals = false; ///< it needs none if all are refused

    bool operator==(const Reading&) const = default;
};

/// What readings cost, by those before.
struct Costs {
    Nanoseconds perMiB = std::chrono::microseconds(20); ///< of small pages, for all figures; measured
    Nanoseconds totals = std::chrono::microseconds(15);
};

/// Returns the processor time that a reading of all figures will take.
Nanoseconds expectedCost(const Process& process, const Costs& costs);

/// Returns the readings of a slice, those of totals first: what a person asked for, what is on show, new or
/// grown, the largest first in each, then what is due after the seconds since the last slice. Their expected
/// cost stays within `credit`. A process that costs more than `maxCredit` is read once the credit is full.
QList<Reading> slice(const QList<Process>& processes, Nanoseconds credit, const Costs& costs,
                     double secondsSinceLast);

} // namespace MemoryPlan
