#pragma once

#include "Platform/Clock.h"

/// A clock whose uptime moves only when it is told to.
class SteppedClock : public Clock {
public:
    std::chrono::system_clock::time_point now() override { return std::chrono::system_clock::now(); }
    std::chrono::steady_clock::time_point uptime() override { return m_uptime; }
    void step(std::chrono::milliseconds time) { m_uptime += time; }

private:
    std::chrono::steady_clock::time_point m_uptime{std::chrono::hours(1)};
};
