#include "KernelFloor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <string>

KernelFloor::KernelFloor(std::span<const int> pids) {
    for (const int pid : pids) {
        const auto folder = "/proc/" + std::to_string(pid);
        Process process{.pid = pid,
                        .statm = open((folder + "/statm").c_str(), O_RDONLY | O_CLOEXEC),
                        .task = open((folder + "/task").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC),
                        .cpuClock = 0};
        if (process.statm < 0 || process.task < 0 || clock_getcpuclockid(pid, &process.cpuClock) != 0) {
            close(process.statm);
            close(process.task);
        } else {
            m_processes.push_back(process);
        }
    }
}

KernelFloor::~KernelFloor() {
    for (const auto& process : m_processes) {
        close(process.statm);
        close(process.task);
    }
}

void KernelFloor::askAll() const {
    std::array<char, 128> room;
    struct stat task;
    timespec cpu;
    for (const auto& process : m_processes) {
        static_cast<void>(!pread(process.statm, room.data(), room.size(), 0));
        fstat(process.task, &task);
        clock_gettime(process.cpuClock, &cpu);
    }
}

bool KernelFloor::openReadCloseAll() const {
    bool isWhole = true;
    std::array<char, 1024> room;
    std::array<char, 32> path;
    for (const auto& process : m_processes) {
        snprintf(path.data(), path.size(), "/proc/%d/stat", process.pid);
        const int file = open(path.data(), O_RDONLY | O_CLOEXEC);
        isWhole &= file >= 0;
        static_cast<void>(!read(file, room.data(), room.size()));
        close(file);
    }
    return isWhole;
}
