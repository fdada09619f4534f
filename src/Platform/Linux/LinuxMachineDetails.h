#pragma once

#include "Platform/Linux/KernelFile.h"
#include "Platform/MachineDetails.h"

#include <vector>

/// Reads `/proc/diskstats`, `/proc/self/mounts`, and the temperatures of `/sys/class/hwmon`, or of the
/// thermal zones where there are none. Each file is opened at its first use.
class LinuxMachineDetails : public MachineDetails {
public:
    /// `root` contains `proc` and `sys`.
    explicit LinuxMachineDetails(QString root = QStringLiteral("/"));

    /// Reads the counters of real disks: those with a device behind them in `/sys/block`.
    QList<DiskTraffic> disks() override;
    QList<HeatSensor> sensors() override;
    /// Returns what is mounted from `/dev`, each device once, at its shortest place.
    QList<MountedVolume> volumes() const override;

private:
    struct Sensor {
        QString name;
        KernelFile millidegrees;
    };

    void findSensors();
    void addSensor(const QString& name, const QString& path);
    std::string path(const QString& relative) const;

    QString m_root;
    std::vector<Sensor> m_sensors;
    bool m_hasLooked = false;
};
