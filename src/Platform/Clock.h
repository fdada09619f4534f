#pragma once

#include <chrono>

/// The program's source of time.
class Clock {
public:
    virtual ~Clock() = default;

    /// Returns date and time. It jumps when the user or the network sets the clock.
    virtual std::chrono::system_clock::time_point now() = 0;
    /// Returns the time for rates and idle times. It never jumps, and stands still while the machine sleeps.
    virtual std::chrono::steady_clock::time_point uptime() = 0;
};

class SystemClock : public Clock {
public:
    std::chrono::system_clock::time_point now() override { return std::chrono::system_clock::now(); }
    std::chrono::steady_clock::time_point uptime() override { return std::chrono::steady_clock::now(); }
};
