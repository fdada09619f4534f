#include "Core/Pressure/PressureWatch.h"

namespace {

constexpr double somePercent = 7.5;
constexpr double fullPercent = 2.5;
constexpr auto heardFor = std::chrono::seconds(10);

} // namespace

void PressureWatch::heard(Pressure::Stall stall, Uptime now) {
    (stall == Pressure::Stall::full ? m_full : m_some) = now;
}

bool PressureWatch::isRecent(const std::optional<Uptime>& heard, Uptime now) {
    return heard && now - *heard < heardFor;
}

std::optional<Alert::Severity> PressureWatch::severity(const std::optional<PressureLevel>& level,
                                                       Uptime now) const {
    const PressureLevel known = level.value_or(PressureLevel());
    if (isRecent(m_full, now) || known.full > fullPercent)
        return Alert::Severity::danger;
    if (isRecent(m_some, now) || known.some > somePercent)
        return Alert::Severity::warn;
    return std::nullopt;
}
