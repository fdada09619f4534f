#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Grouping/GroupRollup.h"
#include "Core/Mcp/MCPInspector.h"
#include "Core/Pressure/FlightRecorder.h"
#include "Core/Sampling/FigureHistory.h"
#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/SystemSample.h"
#include "Core/Sessions/Session.h"

#include <algorithm>

/// The results of the ticks.
struct PublishedState {
    SystemSample systemSample = SystemSample::zero();
    /// Oldest first; at most Preferences::historyRetentionSamples() after a tick.
    QList<SystemSample> systemHistory;
    FigureHistory coreHistory;   ///< the load of each CPU in percent, as long as the history
    FigureHistory groupHistory;  ///< the bytes of each group, in group order; unknown while paused
    QList<ProcSample> processes; ///< largest resident memory first
    QList<GroupRollup> groups;   ///< one per group, in group order; empty before the first tick
    QList<Alert> alerts;
    QList<Incident> incidents;      ///< newest first
    MCPInspector::Report mcpReport; ///< of the last full tick
    SessionReport sessions;         ///< empty unless something wanted it at the last full tick

    /// Returns a process of the last full tick, null for a PID that it did not list.
    const ProcSample* process(qint32 pid) const {
        const auto found = std::ranges::find(processes, pid, &ProcSample::pid);
        return found == processes.end() ? nullptr : &*found;
    }
};
