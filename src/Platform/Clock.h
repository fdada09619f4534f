#pragma once

#include <chrono>

/// Time as the program sees it.
class Clock {
public:
    virtual ~Clock() = default;

    /// Date and time; jumps when the user or the network sets the clock.
    virtual std::chrono::system_clock::time_point now() = 0;
    /// Never jumps and stands still while the machine sleeps: what rates and idle times are measured with.
    virtual std::chrono::steady_clock::time_point uptime() = 0;
};

class SystemClock : public Clock {
public:
    std::chrono::system_clock::time_point now() override { return std::chrono::system_clock::now(); }
    std::chrono::steady_clock::time_point uptime() override { return std::chrono::steady_clock::now(); }
};
