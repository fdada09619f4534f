#pragma once

#include <QList>
#include <QString>

#include <memory>

/// What has gone to and from one disk since the system started. The counts never decrease.
struct DiskTraffic {
    QString device; ///< "nvme0n1"
    quint64 readBytes = 0;
    quint64 writtenBytes = 0;

    bool operator==(const DiskTraffic&) const = default;
};

/// A volume of a disk of this machine.
struct MountedVolume {
    QString place; ///< the folder where it is mounted
    quint64 totalBytes = 0;
    quint64 freeBytes = 0; ///< to an unprivileged user

    bool operator==(const MountedVolume&) const = default;
};

/// One sensor of temperature.
struct HeatSensor {
    QString name; ///< "coretemp Core 0"
    double celsius = 0;

    bool operator==(const HeatSensor&) const = default;
};

/// The parts of the machine, for a page that is on show: nothing is read otherwise. A list is empty where the
/// system refuses the figures.
class MachineDetails {
public:
    virtual ~MachineDetails() = default;

    virtual QList<DiskTraffic> disks() { return {}; }
    virtual QList<HeatSensor> sensors() { return {}; }
    /// May wait for a disk. Can be called on any thread.
    virtual QList<MountedVolume> volumes() const { return {}; }

    /// Makes the implementation of the system this program was built for.
    static std::shared_ptr<MachineDetails> native();
};
