#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Pressure/KernelKills.h"
#include "Core/Pressure/MemoryForecast.h"

/// What the watch over the memory has found, for the rules.
struct MemoryOutlook {
    std::optional<Alert::Severity> pressure; ///< empty while programs do not wait for memory
    std::optional<MemoryForecast> forecast;  ///< empty unless memory will be full soon
    QList<MemoryKill> kills;                 ///< since the program started, newest first
};
