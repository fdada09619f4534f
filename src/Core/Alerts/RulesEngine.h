#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Cleanup/CacheTarget.h"
#include "Core/Grouping/GroupRollup.h"
#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/SystemSample.h"

class Identity;
class Preferences;

/// Turns the figures of one tick and the preferences into alerts.
class RulesEngine {
public:
    /// Makes an engine whose alerts offer to quit processes of the user in `identity` only, this program
    /// excepted.
    explicit RulesEngine(const Identity& identity)
        : m_identity(identity) {}

    /// Returns the alerts in force, in the order of the rules. `processes` are grouped, largest resident
    /// memory first. Counts hot ticks: call it once per full tick.
    QList<Alert> evaluate(const SystemSample& system, const QList<ProcSample>& processes,
                          const QList<GroupRollup>& groups, const QList<CacheTarget>& caches,
                          const Preferences& prefs);

    /// Returns whether the alert on browsers may be in force once their true memory is known, which is at
    /// most their resident memory and all that is in swap.
    static bool needsTrueMemory(const SystemSample& system, const QList<GroupRollup>& groups,
                                const Preferences& prefs);

private:
    const Identity& m_identity;
    int m_thermalHotStreak = 0; ///< consecutive evaluations in a serious or critical thermal state
    static constexpr int thermalHotStreakThreshold = 30;
};
