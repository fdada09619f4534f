// Measures the ledger of true memory with 1,000 sleeping processes and a tick every two seconds of a clock
// that it moves itself. Standard output has one "NAME VALUE" a line: the processor time of a tick with its
// slice, on average over ten minutes, and the age of the figures at the end.

#include "Children.h"
#include "Core/Memory/MemoryLedger.h"
#include "Core/Sampling/Sampler.h"
#include "Platform/Platform.h"
#include "SteppedClock.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <time.h>
#include <vector>

namespace {

constexpr int sleepers = 1000;
constexpr int ticks = 300;
constexpr auto interval = std::chrono::seconds(2);

double processMicroseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

/// Returns the ages in ascending order of the figures of the processes that started before `limit`, infinity
/// for what is not read.
std::vector<double> ages(const QList<ProcSample>& processes, Instant limit,
                         std::chrono::steady_clock::time_point now) {
    std::vector<double> ages;
    for (const ProcSample& process : processes) {
        if (process.startTime >= limit)
            continue;
        const bool isRead = process.memory != nullptr;
        ages.push_back(isRead ? std::chrono::duration<double>(now - process.memory->readAt).count()
                              : std::numeric_limits<double>::infinity());
    }
    std::ranges::sort(ages);
    return ages;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const Children children(sleepers);
    if (children.count() < sleepers) {
        std::fprintf(stderr, "only %d of %d processes could be started\n", children.count(), sleepers);
        return 1;
    }
    Platform platform = Platform::native();
    const auto clock = std::make_shared<SteppedClock>();
    platform.clock = clock;
    Sampler sampler(platform);
    MemoryLedger ledger(platform.processMemory, clock);
    QList<ProcSample> processes;
    const Instant start = clock->now();
    double spent = 0;
    for (int tick = 0; tick < ticks; ++tick) {
        clock->step(interval);
        processes = sampler.sampleProcesses();
        const double before = processMicroseconds();
        ledger.wantAll();
        ledger.tick(processes, true);
        ledger.waitForSlice();
        spent += processMicroseconds() - before;
    }
    std::printf("ledger_us_per_tick_1000 %.0f\n", spent / ticks);
    const std::vector<double> seconds = ages(processes, start, clock->uptime());
    std::printf("ledger_age_seconds_median %.0f\n", seconds[seconds.size() / 2]);
    std::printf("ledger_age_seconds_max %.0f\n", seconds.back());
    return 0;
}
