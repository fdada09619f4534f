#pragma once

/// Whether the user asked the machine to save power.
class PowerMode {
public:
    virtual ~PowerMode() = default;

    /// Returns the last known state at once.
    virtual bool isLowPowerModeEnabled() const = 0;
};
