// Prints what the ledger says of processes and all that descend from them:
//   tavrin_memory_truth PID...
// prints "sum_bytes", "resident_bytes", "promised_bytes" and "promised_swap_bytes" with their values, and
// "rough" with 1 while something is not read. Status 1 when that lasts for a minute of ticks.

#include "Core/Memory/MemoryFigures.h"
#include "Core/Memory/MemoryLedger.h"
#include "Core/Memory/MemoryReturn.h"
#include "Core/Memory/SummedMemory.h"
#include "Core/Sampling/Sampler.h"
#include "Platform/Platform.h"
#include "SteppedClock.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

constexpr int maxTicks = 4000;

QList<qint32> withDescendants(QList<qint32> pids, const QList<ProcSample>& processes) {
    bool hasGrown = true;
    while (hasGrown) {
        hasGrown = false;
        for (const ProcSample& process : processes) {
            if (!pids.contains(process.pid) && pids.contains(process.parentPid)) {
                pids.append(process.pid);
                hasGrown = true;
            }
        }
    }
    return pids;
}

bool isRead(const ProcSample& process) {
    return process.memory && (process.memory->isProportional() || process.memory->isRefused);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QList<qint32> roots;
    for (int i = 1; i < argc; ++i)
        roots.append(std::stoi(argv[i]));
    Platform platform = Platform::native();
    const auto clock = std::make_shared<SteppedClock>();
    platform.clock = clock;
    Sampler sampler(platform);
    MemoryLedger ledger(platform.processMemory, clock);
    QList<ProcSample> processes;
    QList<qint32> pids;
    QList<ProcSample> members;
    bool isRough = true;
    for (int tick = 0; tick < maxTicks && isRough; ++tick) {
        clock->step(std::chrono::milliseconds(1));
        processes = sampler.sampleProcesses();
        pids = withDescendants(roots, processes);
        ledger.wantAll(); // what others share with them stays
        ledger.wantAsked(pids);
        ledger.tick(processes, true);
        ledger.waitForSlice();
        members.clear();
        std::ranges::copy_if(processes, std::back_inserter(members),
                             [&pids](const ProcSample& process) { return pids.contains(process.pid); });
        isRough = !std::ranges::all_of(processes, isRead);
    }
    const SummedMemory sum = SummedMemory::of(members);
    const MemoryReturn back = MemoryReturn::ofEnding(pids, processes);
    for (const auto& [name, value] :
         {std::pair("sum_bytes", sum.bytes), std::pair("resident_bytes", sum.residentBytes),
          std::pair("promised_bytes", back.memoryBytes), std::pair("promised_swap_bytes", back.swapBytes),
          std::pair("rough", quint64(isRough))})
        std::printf("%s %llu\n", name, static_cast<unsigned long long>(value));
    return isRough ? 1 : 0;
}
