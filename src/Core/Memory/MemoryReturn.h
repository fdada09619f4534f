#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

/// What the machine gets back when processes end, in bytes: memory that is in use, and swap.
struct MemoryReturn {
    quint64 memoryBytes = 0;
    quint64 swapBytes = 0;
    bool isRough = false; ///< at most so much: for what is not read, its resident or its anonymous memory

    MemoryReturn& operator+=(const MemoryReturn& other);
    quint64 totalBytes() const { return memoryBytes + swapBytes; }
    bool operator==(const MemoryReturn&) const = default;

    /// Returns what the end of this process alone gives back.
    static MemoryReturn ofEnding(const ProcSample& process);
    /// Returns what the end of exactly these processes gives back. `all` are the processes of the machine.
    ///
    /// A page that several processes map comes back with the last of them. Processes share pages that count
    /// when one forked the other and both still run the same program. Such a family gives back what it holds
    /// together, less all pages of those that stay. Clean pages of files never count, because the system
    /// keeps them as cache; page tables do.
    static MemoryReturn ofEnding(const QList<qint32>& pids, const QList<ProcSample>& all);
};
