#pragma once

#include <sys/types.h>

#include <span>
#include <vector>

/// What the kernel takes to answer, without anything of ours around it.
class KernelFloor {
public:
    /// Keeps the descriptors that `askAll` reads, two for each of these processes.
    explicit KernelFloor(std::span<const int> pids);
    ~KernelFloor();
    KernelFloor(const KernelFloor&) = delete;
    KernelFloor& operator=(const KernelFloor&) = delete;

    /// How many could be opened.
    int count() const { return static_cast<int>(m_processes.size()); }
    /// Memory, threads and CPU time of every process over kept descriptors; the answers are dropped.
    void askAll() const;
    /// Opens, reads and closes `/proc/N/stat` of every process; the text is dropped.
    void openReadCloseAll() const;

private:
    struct Process {
        int pid;
        int statm;
        int task;
        clockid_t cpuClock;
    };
    std::vector<Process> m_processes;
};
