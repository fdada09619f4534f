#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Platform/MemoryKills.h"

#include <QHash>
#include <QList>

#include <optional>

/// A process that was ended because memory ran out.
struct MemoryKill {
    Instant at;
    qint32 pid = 0; ///< 0 where only the control group is known
    QString name;
    std::optional<quint64> bytes; ///< that it held
    QString by;                   ///< the program that ended it, empty for the kernel
    bool isGuess = false;         ///< judged by what vanished, not by a record

    bool operator==(const MemoryKill&) const = default;
    /// Returns a constant name for the kill.
    QString id() const;
};

/// Finds out which processes were ended because memory ran out. The system counts them; their names come from
/// its record where that is readable, else from what vanished meanwhile, largest first.
class KernelKills {
public:
    /// Takes the count and the processes of a tick. Returns whether the record is worth reading: the count
    /// has risen, or something large vanished while a program that ends others may do so.
    bool follow(std::optional<quint64> count, const QList<ProcSample>& processes, bool isGuarded,
                Instant now);

    /// Returns what was ended since the last call, by the record and by what vanished up to now.
    QList<MemoryKill> take(const QList<RecordedKill>& record);

private:
    void noteVanished(const QList<ProcSample>& processes);
    std::optional<quint64> sizeOf(qint32 pid) const;

    std::optional<quint64> m_count;
    quint64 m_unnamed = 0; ///< counted and not taken
    Instant m_now;
    QList<ProcSample> m_previous;
    QList<ProcSample> m_vanished;   ///< since the record became worth reading, largest first
    QHash<qint32, Instant> m_taken; ///< the PIDs of the record, which is read back a few seconds too far
    bool m_isAsking = false;        ///< the record is worth reading, until `take`
};
