#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/SystemSample.h"

#include <QList>

/// What went on at one tick.
struct Moment {
    /// One of the largest processes then.
    struct Process {
        qint32 pid = 0;
        QString name;
        quint64 rssBytes = 0;
        double cpuPercent = 0;

        bool operator==(const Process&) const = default;
    };

    Instant at;
    double memUsedPercent = 0;
    quint64 swapUsedBytes = 0;
    double cpuPercent = 0;
    std::optional<PressureLevel> pressure;
    QList<Process> largest; ///< at most ten, largest resident size first

    bool operator==(const Moment&) const = default;
};

/// What went on in the five minutes before something happened.
struct Incident {
    QString alertId;
    QString title;         ///< of the alert
    QList<Moment> moments; ///< oldest first; the last is that of the event

    bool operator==(const Incident&) const = default;
};

/// Keeps the moments of the last five minutes, in memory only.
class FlightRecorder {
public:
    /// Takes the figures of a tick; `processes` are the largest resident size first.
    void note(const SystemSample& system, const QList<ProcSample>& processes);

    const QList<Moment>& moments() const { return m_moments; }

private:
    QList<Moment> m_moments;
};
