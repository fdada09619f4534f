#pragma once

#include "Platform/Linux/KernelFile.h"
#include "Platform/ProcessMemory.h"

#include <string>
#include <string_view>

/// The memory of processes in procfs (proc(5)).
class LinuxProcessMemory : public ProcessMemory {
public:
    /// The arguments are the mount points of procfs and of the control groups.
    explicit LinuxProcessMemory(const std::string& root = "/proc",
                                const std::string& controlGroups = "/sys/fs/cgroup");

    /// Reads `/proc/N/smaps_rollup`, for the user's own processes only. Linux walks all pages for it.
    ProcessMemoryReading readAll(qint32 pid) override;
    /// Reads RssAnon and VmSwap in `/proc/N/status`.
    ProcessMemoryReading readTotals(qint32 pid) override;

    /// Reads memory.current, memory.swap.current and memory.stat of the group in `/proc/N/cgroup` (cgroup
    /// v2).
    std::optional<ControlGroupMemory> controlGroup(qint32 pid) override;

    /// Parse the text of these files. A line that the kernel lacks leaves its figure empty. The dirty part of
    /// the proportional share is Pss_Anon and Pss_Shmem where the kernel has no Pss_Dirty (before 6.0).
    static ProcessMemoryUse parseRollup(std::string_view text);
    static ProcessMemoryUse parseStatus(std::string_view text);

private:
    ProcessMemoryReading read(qint32 pid, const char* name,
                              ProcessMemoryUse (*parse)(std::string_view)) const;

    KernelFile m_folder;
    std::string m_controlGroups;
};
