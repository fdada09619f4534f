#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Cleanup/CacheTarget.h"
#include "Core/Grouping/GroupRollup.h"
#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/SystemSample.h"

class Identity;
class Preferences;

/// Turns one tick's figures and the preferences into the alerts in force, in the order of the rules.
class RulesEngine {
public:
    /// `identity` tells whom an alert may offer to quit: neither this program nor a process of somebody else.
    explicit RulesEngine(const Identity& identity)
        : m_identity(identity) {}

    /// `processes` are grouped and sorted by resident memory, largest first. Counts hot ticks as a side
    /// effect: call it once per full tick.
    QList<Alert> evaluate(const SystemSample& system, const QList<ProcSample>& processes,
                          const QList<GroupRollup>& groups, const QList<CacheTarget>& caches,
                          const Preferences& prefs);

private:
    const Identity& m_identity;
    /// Consecutive evaluations in a serious or critical thermal state, and from how many on it is an alert.
    int m_thermalHotStreak = 0;
    static constexpr int thermalHotStreakThreshold = 30;
};
