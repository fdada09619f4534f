#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

#include <chrono>
#include <vector>

/// The CPU and memory of the processes that a person looked at last, while they were looked at.
class InspectedHistory {
public:
    struct Point {
        Instant at;
        double cpuPercent = 0;
        quint64 rssBytes = 0;
    };

    static constexpr std::chrono::minutes span{5};

    /// Adds the figures of a tick.
    void note(const ProcSample& process, Instant at);
    /// Returns the points of the last minutes, oldest first.
    std::vector<Point> of(const ProcessIdentity& process) const;

private:
    static constexpr qsizetype mostProcesses = 8;

    struct Track {
        ProcessIdentity process;
        std::vector<Point> points;
    };

    QList<Track> m_tracks; ///< the last one looked at first
};
