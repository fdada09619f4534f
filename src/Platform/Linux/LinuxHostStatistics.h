#pragma once

#include "Platform/HostStatistics.h"
#include "Platform/Linux/KernelFile.h"
#include "Platform/Linux/ThermalZones.h"

#include <QString>

#include <vector>

/// Whole-machine figures from procfs, sysfs and statvfs.
class LinuxHostStatistics : public HostStatistics {
public:
    /// `root` is the folder that holds `proc` and `sys`. The volume is always that of "/".
    explicit LinuxHostStatistics(const QString& root = QStringLiteral("/"));

    /// First line of `/proc/stat`. irq, softirq and steal count as system, iowait as idle; guest is part
    /// of user already.
    std::optional<CpuTicks> cpuTicks() override;
    /// `/proc/meminfo`. Active, wired and compressed sum to MemTotal - MemAvailable; the total is MemTotal,
    /// what is left to the kernel of the memory built in.
    MemoryUse memoryUse() override;
    std::optional<VolumeSize> rootVolume() override;
    int thermalLevel() override { return m_zones.level(); }

private:
    quint64 zramBytes() const;

    KernelFile m_stat;
    KernelFile m_meminfo;
    std::vector<KernelFile> m_zram;
    ThermalZones m_zones;
    std::optional<CpuTicks> m_ticks; ///< never step back
    CpuTicks m_lastTicks;            ///< as they were read
};
