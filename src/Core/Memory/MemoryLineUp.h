#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/SystemSample.h"

#include <QList>
#include <QStringList>

/// The parts of the machine's used memory, in bytes.
struct MemoryLineUp {
    quint64 usedBytes = 0;
    quint64 groupBytes = 0;  ///< the user's processes in memory, shared pages once
    quint64 cacheBytes = 0;  ///< of these, clean pages of files, which the system counts as available
    quint64 otherBytes = 0;  ///< anonymous memory of the processes of other users
    quint64 kernelBytes = 0; ///< and what it keeps in reserve
    bool isKnown = false;    ///< false while of a process only the resident size is known
    bool isAbout = false;    ///< processes are not read, and their own anonymous memory stands for them

    /// `userId` is the user whose processes can be read whole.
    static MemoryLineUp of(const SystemSample& sample, const QList<ProcSample>& processes, quint32 userId);

    /// Returns what is left: shared memory that no process maps. Negative when processes share more than is
    /// known.
    qint64 restBytes() const;
    /// Returns one line for each part and one for the sum, none while unknown.
    QStringList lines() const;
};
