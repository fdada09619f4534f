#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Cleanup/CacheTarget.h"
#include "Core/Grouping/GroupRollup.h"
#include "Core/Pressure/MemoryOutlook.h"
#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/SystemSample.h"
#include "Core/Sessions/Session.h"

#include <functional>
#include <utility>

class Identity;
class Preferences;

/// Turns the figures of one tick and the preferences into alerts.
class RulesEngine {
public:
    /// Returns the folder that a process works in, as a shell shows it; empty when unknown.
    using ProjectOf = std::function<QString(const ProcSample&)>;

    /// Makes an engine whose alerts offer to quit processes of the user in `identity` only, this program
    /// excepted.
    explicit RulesEngine(const Identity& identity, ProjectOf projectOf = {})
        : m_identity(identity)
        , m_projectOf(std::move(projectOf)) {}

    /// Returns the alerts in force, in the order of the rules. `processes` are grouped, largest resident
    /// memory first. `sessions` are needed for the alert on large ones only, `outlook` for those on pressure,
    /// on memory that will be full, and on kills. Counts hot ticks: call it once per full tick.
    QList<Alert> evaluate(const SystemSample& system, const QList<ProcSample>& processes,
                          const QList<GroupRollup>& groups, const QList<CacheTarget>& caches,
                          const Preferences& prefs, const QList<Session>& sessions = {},
                          const MemoryOutlook& outlook = {});

    /// Returns whether the alert on browsers may be in force once their true memory is known, which is at
    /// most their resident memory and all that is in swap.
    static bool needsTrueMemory(const SystemSample& system, const QList<GroupRollup>& groups,
                                const Preferences& prefs);

private:
    const Identity& m_identity;
    ProjectOf m_projectOf;
    int m_thermalHotStreak = 0; ///< consecutive evaluations in a serious or critical thermal state
    static constexpr int thermalHotStreakThreshold = 30;
};
