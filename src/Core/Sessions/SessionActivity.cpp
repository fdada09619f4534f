#include "Core/Sessions/SessionActivity.h"

#include <algorithm>

namespace {

constexpr double leastPercent = 3;   // claude, codex, gemini and qwen idle at 0.1 to 1.4, measured
constexpr double risePerTick = 0.01; // of the usual load towards the present one
constexpr auto workingTime = std::chrono::seconds(10);
constexpr auto trendStep = std::chrono::seconds(10);
constexpr qsizetype maxTrend = 60;

} // namespace

void SessionActivity::add(double cpuPercent, Instant now) {
    // The first load may be that of a start: what is usual is learnt from less.
    const double usual = m_usualPercent.value_or(std::min(cpuPercent, leastPercent));
    if (cpuPercent > usual + std::max(leastPercent, usual))
        m_lastActive = now;
    m_usualPercent = cpuPercent < usual ? cpuPercent : usual + (cpuPercent - usual) * risePerTick;
}

void SessionActivity::addMemory(quint64 bytes, std::chrono::steady_clock::time_point uptime) {
    if (!m_trend.isEmpty() && uptime - m_trendAt < trendStep)
        return;
    m_trendAt = uptime;
    m_trend.append(static_cast<double>(bytes));
    if (m_trend.size() > maxTrend)
        m_trend.removeFirst();
}

bool SessionActivity::isWorking(Instant now) const {
    return m_lastActive && now - *m_lastActive < workingTime;
}
