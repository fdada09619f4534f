#include "BusyMachine.h"

#include <array>
#include <cmath>

namespace {

constexpr qsizetype processCount = 1000;
constexpr qsizetype steadyCount = 200; ///< the first ones, which keep running
constexpr int startsPerPass = 400;
constexpr qint32 maxPid = 32767;
constexpr quint64 MiB = 1 << 20;

constexpr std::array steadyNames = {"claude",   "code",   "firefox-esr", "chrome", "dockerd",
                                    "postgres", "clangd", "gnome-shell", "zsh",    "systemd"};
constexpr std::array passingNames = {"sh", "git", "cc1plus", "rg", "node", "python3"};

/// Answers by the PID, on any thread, and keeps no record of who asked.
class EvenMemory : public FakeProcessMemory {
public:
    ProcessMemoryReading readAll(qint32 pid) override { return reading(pid); }
    ProcessMemoryReading readTotals(qint32 pid) override { return reading(pid); }

private:
    static ProcessMemoryReading reading(qint32 pid) {
        const quint64 bytes = static_cast<quint64>(pid % 200) * MiB;
        return {.use = ProcessMemoryUse{.proportionalBytes = bytes,
                                        .proportionalDirtyBytes = bytes / 2,
                                        .uniqueBytes = bytes / 2,
                                        .uniqueDirtyBytes = bytes / 2,
                                        .dirtyBytes = bytes / 2,
                                        .anonymousBytes = bytes / 2,
                                        .swapBytes = 0,
                                        .proportionalSwapBytes = 0}};
    }
};

} // namespace

BusyMachine::BusyMachine() {
    fakes.processMemory = std::make_shared<EvenMemory>();
    for (qsizetype row = 0; row < processCount; ++row) {
        fakes.processes->listing.append(0);
        start(row);
    }
}

void BusyMachine::pass() {
    ++m_passes;
    fakes.clock->advance(2);
    swing();
    work();
    for (int i = 0; i < startsPerPass; ++i)
        start(steadyCount + m_random.bounded(static_cast<int>(processCount - steadyCount)));
}

qint32 BusyMachine::nextFreePid() {
    do
        m_pid = m_pid == maxPid ? 300 : m_pid + 1;
    while (fakes.processes->processes.contains(m_pid));
    return m_pid;
}

/// Replaces the process in the row of the listing.
void BusyMachine::start(qsizetype row) {
    qint32& pid = fakes.processes->listing[row];
    fakes.processes->processes.remove(pid);
    pid = nextFreePid();
    ++m_started;
    if (row < steadyCount)
        startSteady(row);
    else
        startPassing(row);
}

void BusyMachine::startSteady(qsizetype row) {
    const QByteArray name = steadyNames[static_cast<std::size_t>(row) % steadyNames.size()];
    fakes.processes->processes[fakes.processes->listing[row]] = {
        .task = TaskInfo{.residentBytes = (20 + static_cast<quint64>(row) * 4) * MiB, .threads = 8},
        .path = "/usr/bin/" + name,
        .name = name,
        .arguments = name + '\0',
        .info = KernelProcessInfo{.start = fakes.clock->wall, .uid = fakes.identity->uid, .parentPid = 1}};
}

void BusyMachine::startPassing(qsizetype row) {
    const QByteArray number = QByteArray::number(m_started);
    QByteArray name = passingNames[static_cast<std::size_t>(row) % passingNames.size()];
    QByteArray arguments = name + '\0' + "--number" + '\0' + number + '\0';
    if (m_started % 2 == 0)
        name = "build-step-" + number;
    else if (m_started % 25 == 0)
        arguments = name + '\0' + "@modelcontextprotocol/server-" + number + '\0';
    fakes.processes->processes[fakes.processes->listing[row]] = {
        .task = TaskInfo{.residentBytes = static_cast<quint64>(m_random.bounded(1, 200)) * MiB, .threads = 1},
        .path = "/home/ana/work/" + number + '/' + name,
        .name = name,
        .arguments = arguments,
        .info = KernelProcessInfo{.start = fakes.clock->wall, .uid = fakes.identity->uid, .parentPid = 1}};
}

/// A third of the steady ones stay idle.
void BusyMachine::work() {
    for (qsizetype row = 0; row < processCount; ++row) {
        FakeProcess& process = fakes.processes->processes[fakes.processes->listing[row]];
        if (row >= steadyCount || row % 3 != 0)
            process.task->cpuTimeNs += static_cast<quint64>(m_random.bounded(100'000'000));
    }
}

/// Changes load and memory, and with them the alerts.
void BusyMachine::swing() {
    const double load = 50 + 45 * std::sin(m_passes / 40.0);
    fakes.host->ticks->user += static_cast<quint64>(load * 10);
    fakes.host->ticks->idle += static_cast<quint64>((100 - load) * 10);
    fakes.host->memory.activeBytes = static_cast<quint64>((8 + 7 * std::sin(m_passes / 60.0)) * 1024) * MiB;
    fakes.host->memory.swapUsedBytes = static_cast<quint64>(m_passes % 500) * 16 * MiB;
    fakes.host->thermal = m_passes / 250 % 4;
}
