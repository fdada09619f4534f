#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

/// The memory of several processes together, shared pages once: their proportional shares, and what they have
/// in swap.
struct SummedMemory {
    /// How true the sum is: exact; without what some processes share; or with a stand-in for what is not
    /// known yet: the part of the resident size that no file backs, or all of it where that is unknown.
    enum class Certainty { exact, atLeast, about };

    quint64 bytes = 0;
    quint64 swapBytes = 0;     ///< the known part of `bytes` that is in swap
    quint64 standInBytes = 0;  ///< the part of `bytes` that stands in for what is not known yet
    quint64 residentBytes = 0; ///< the resident sizes added up, which counts a shared page more than once
    Certainty certainty = Certainty::exact;

    bool operator==(const SummedMemory&) const = default;

    void add(const ProcSample& process);
    static SummedMemory of(const QList<ProcSample>& processes);

    /// Returns the sum with the sign of its certainty, as in "≥ 1.2 GB".
    QString text() const;
    /// Returns "resident 1.6 GB, in swap 120 MB".
    QString parts() const;
    /// Returns the sum and its parts in words, for tool tips and screen readers.
    QString description() const;
};
