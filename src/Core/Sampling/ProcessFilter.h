#pragma once

#include "Core/Sampling/ProcSample.h"

class Identity;

/// Which processes an action that selects by a rule may select at all: the current user's, never this
/// program, idle for long enough and large enough.
class ProcessFilter {
public:
    /// Without thresholds.
    explicit ProcessFilter(const Identity& identity);
    /// Least idle time in minutes, least resident size in MiB, both inclusive. A threshold that is no number
    /// or that no byte count can express selects nothing.
    ProcessFilter(const Identity& identity, double minIdleMin, double minRSSMB);

    bool accepts(const ProcSample& process) const;

    /// The whole MiB of a threshold in bytes. Empty unless it is finite, above -1 and below 2^44.
    static std::optional<quint64> bytesFromMiB(double mebibytes);

private:
    quint32 m_userId;
    qint32 m_ownPid;
    double m_minIdleSeconds;
    std::optional<quint64> m_minRssBytes;
};
