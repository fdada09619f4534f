#pragma once

#include "Platform/Clock.h"

/// A clock whose uptime can be moved ahead.
class SteppedClock : public Clock {
public:
    std::chrono::system_clock::time_point now() override { return std::chrono::system_clock::now(); }
    std::chrono::steady_clock::time_point uptime() override {
        return std::chrono::steady_clock::now() + m_ahead;
    }
    void step(std::chrono::milliseconds time) { m_ahead += time; }

private:
    std::chrono::milliseconds m_ahead{};
};
