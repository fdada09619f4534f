#pragma once

#include "Core/Instant.h"

#include <QList>

#include <chrono>
#include <optional>

/// Tells from its CPU load when a session was last active. An agent that waits still draws its screen, so a
/// tick counts when it has clearly more than the usual load of an idle one.
class SessionActivity {
public:
    /// Takes the load of one tick, in percent of a core.
    void add(double cpuPercent, Instant now);
    /// Takes the memory of one tick in bytes; of those within 10 seconds the first counts.
    void addMemory(quint64 bytes, std::chrono::steady_clock::time_point uptime);

    std::optional<Instant> lastActive() const { return m_lastActive; }
    bool isWorking(Instant now) const;
    /// Returns at most 60 figures of the last 10 minutes, oldest first.
    const QList<double>& trend() const { return m_trend; }

private:
    std::optional<double> m_usualPercent;
    std::optional<Instant> m_lastActive;
    QList<double> m_trend;
    std::chrono::steady_clock::time_point m_trendAt;
};
