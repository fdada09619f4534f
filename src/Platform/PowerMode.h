#pragma once

/// Whether the user asked the machine to save power.
class PowerMode {
public:
    virtual ~PowerMode() = default;

    /// The last state heard of; never waits for an answer.
    virtual bool isLowPowerModeEnabled() const = 0;
};
