#pragma once

#include <sys/types.h>

#include <span>
#include <vector>

/// The kernel's share of the cost.
class KernelFloor {
public:
    /// Opens the two descriptors per process that `askAll` reads.
    explicit KernelFloor(std::span<const int> pids);
    ~KernelFloor();
    KernelFloor(const KernelFloor&) = delete;
    KernelFloor& operator=(const KernelFloor&) = delete;

    /// Returns how many processes could be opened.
    int count() const { return static_cast<int>(m_processes.size()); }
    /// Reads memory, threads and CPU time of every process.
    void askAll() const;
    /// Opens, reads and closes `/proc/N/stat` of every process. Returns false where one cannot be opened, as
    /// when the descriptors have run out.
    bool openReadCloseAll() const;

private:
    struct Process {
        int pid;
        int statm;
        int task;
        clockid_t cpuClock;
    };
    std::vector<Process> m_processes;
};
