#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Sampling/SystemSample.h"

#include <chrono>
#include <optional>

/// Judges how much programs wait for memory.
class PressureWatch {
public:
    using Uptime = std::chrono::steady_clock::time_point;

    /// Takes a call of the system. It counts for ten seconds.
    void heard(Pressure::Stall stall, Uptime now);

    /// Returns `warn` while some program waits for more than 7.5 % of the time, `danger` while all wait for
    /// more than 2.5 %: what the system calls on, 150 and 50 ms in two seconds. Returns an empty optional
    /// otherwise.
    std::optional<Alert::Severity> severity(const std::optional<PressureLevel>& level, Uptime now) const;

private:
    static bool isRecent(const std::optional<Uptime>& heard, Uptime now);

    std::optional<Uptime> m_some;
    std::optional<Uptime> m_full;
};
