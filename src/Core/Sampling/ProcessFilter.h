#pragma once

#include "Core/Sampling/ProcSample.h"

#include <limits>
#include <optional>

class Identity;

/// Accepts the processes that a rule may select: those of the current user, without this program, with a
/// minimum of idle time and size.
class ProcessFilter {
public:
    /// Takes the minimum of idle time in minutes and of resident size in MiB, both inclusive. Accepts nothing
    /// when one is NaN or no byte count expresses the size.
    explicit ProcessFilter(const Identity& identity,
                           double minIdleMin = -std::numeric_limits<double>::infinity(), double minRSSMB = 0);

    /// Returns whether the rule may select the process.
    bool accepts(const ProcSample& process) const;

    /// Returns the whole MiB in bytes, or an empty optional unless they are finite, above -1 and below 2^44.
    static std::optional<quint64> bytesFromMiB(double mebibytes);

private:
    quint32 m_userId;
    qint32 m_ownPid;
    double m_minIdleSeconds;
    std::optional<quint64> m_minRssBytes;
};
