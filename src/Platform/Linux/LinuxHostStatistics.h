#pragma once

#include "Platform/HostStatistics.h"
#include "Platform/Linux/KernelFile.h"
#include "Platform/Linux/ThermalZones.h"

#include <QString>

#include <vector>

/// Whole-machine figures from procfs, sysfs and statvfs.
class LinuxHostStatistics : public HostStatistics {
public:
    /// `root` contains `proc` and `sys`. The volume is always that of "/".
    explicit LinuxHostStatistics(const QString& root = QStringLiteral("/"));

    /// Reads `/proc/stat`, and returns its first line. irq, softirq and steal count as system, iowait as
    /// idle; user includes guest.
    std::optional<CpuTicks> cpuTicks() override;
    QList<CoreTicks> coreTicks() override;
    /// Reads `/proc/meminfo`. Active, wired and compressed add up to MemTotal - MemAvailable.
    MemoryUse memoryUse() override;
    std::optional<VolumeSize> rootVolume() override;
    int thermalLevel() override { return m_zones.level(); }

private:
    quint64 zramBytes() const;

    KernelFile m_stat;
    std::vector<char> m_statBuffer;
    std::string_view m_statLines; ///< as of the last reading; a line that was cut short is left out
    KernelFile m_meminfo;
    std::vector<KernelFile> m_zram;
    ThermalZones m_zones;
    std::optional<CpuTicks> m_ticks; ///< never decrease
    CpuTicks m_lastTicks;            ///< as read
};
