#include "Core/Pressure/FlightRecorder.h"

#include <algorithm>

namespace {

constexpr auto recordedTime = std::chrono::minutes(5);
constexpr qsizetype maxRecorded = 10; // processes

} // namespace

void FlightRecorder::note(const SystemSample& system, const QList<ProcSample>& processes) {
    Moment moment{.at = system.timestamp,
                  .memUsedPercent = system.memUsedPercent(),
                  .swapUsedBytes = system.swapUsedBytes,
                  .cpuPercent = system.cpuPercent,
                  .pressure = system.memoryPressure,
                  .largest = {}};
    for (const ProcSample& process : processes.first(std::min(processes.size(), maxRecorded))) {
        moment.largest.append({.pid = process.pid,
                               .name = process.name,
                               .rssBytes = process.rssBytes,
                               .cpuPercent = process.cpuPercent});
    }
    m_moments.append(std::move(moment));
    // Also what a clock that was set back left in the future.
    m_moments.removeIf([&system](const Moment& past) {
        return past.at < system.timestamp - recordedTime || past.at > system.timestamp;
    });
}
