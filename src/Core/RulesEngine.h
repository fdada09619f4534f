#pragma once

#include "Core/Models.h"

class Preferences;

/// Turns one tick's figures and the preferences into the alerts in force, in the order of the rules.
class RulesEngine {
public:
    /// `processes` are grouped and sorted by resident memory, largest first. Counts hot ticks as a side
    /// effect: call it once per full tick.
    QList<Alert> evaluate(const SystemSample& system, const QList<ProcSample>& processes,
                          const QList<GroupRollup>& groups, const QList<CacheTarget>& caches,
                          const Preferences& prefs);

private:
    /// Consecutive evaluations in a serious or critical thermal state, and from how many on it is an alert.
    int thermalHotStreak = 0;
    static constexpr int thermalHotStreakThreshold = 30;
};
