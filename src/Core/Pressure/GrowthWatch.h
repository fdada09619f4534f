#pragma once

#include "Core/Grouping/GroupRollup.h"
#include "Core/Pressure/MemoryForecast.h"
#include "Core/Pressure/Trend.h"
#include "Core/Sampling/SystemSample.h"
#include "Core/Sessions/Session.h"

#include <QHash>

#include <chrono>

/// Follows what is left of the memory, and the memory of the large processes and of the groups, and tells
/// when the machine will be full and because of whom.
class GrowthWatch {
public:
    using Uptime = std::chrono::steady_clock::time_point;

    /// Takes the figures of a tick. Keeps those of every tenth second, for 15 minutes. `processes` are the
    /// largest resident size first.
    void note(Uptime now, const SystemSample& system, const QList<ProcSample>& processes,
              const QList<GroupRollup>& groups);

    /// Returns the forecast once the machine will be full within 30 minutes, until that is 40 minutes away or
    /// memory no longer falls. Of the sessions it uses the members.
    std::optional<MemoryForecast> forecast(const QList<Session>& sessions) const;

    /// Returns whether a forecast is in force.
    bool hasForecast() const { return m_isWarning; }
    /// Returns the processes whose true memory the next forecast needs: none while memory does not fall.
    QList<qint32> suspects() const;

private:
    /// The memory of one process or group at the last times of `m_seconds`.
    struct Track {
        QString name;
        Instant startTime;  ///< of a process
        bool isNew = false; ///< began after the first of `m_seconds`
        QList<double> resident;
        QList<double> real; ///< since the ledger has it
        quint64 noted = 0;  ///< the last note
    };

    void restartAfterPause(double now);
    void noteProcesses(const QList<ProcSample>& processes, Instant now);
    void noteGroups(const QList<GroupRollup>& groups);
    void append(Track& track, quint64 resident, std::optional<quint64> real);
    void judge();
    QList<double> duringFall(const Track& track) const;
    double growthOf(const QList<double>& duringFall) const;
    std::optional<Grower> growerAmong(const QList<Session>& sessions) const;
    std::optional<Grower> fastestProcess(const QSet<qint32>& without) const;
    std::optional<Grower> fastestGroup() const;

    QList<double> m_seconds;
    QList<double> m_left; ///< bytes
    QHash<qint32, Track> m_processes;
    QList<Track> m_groups;
    quint64 m_notes = 0;
    std::optional<Trend::Fall> m_fall; ///< the last one while a forecast is in force
    bool m_isWarning = false;
    int m_misses = 0; ///< notes without a fall since the last one
};
