#pragma once

#include "Platform/Linux/KernelFile.h"

#include <QString>

#include <vector>

/// The thermal zones of `class/thermal` in sysfs, compared with their trip points. Zones and trips are found
/// once; each later call makes one read per zone.
class ThermalZones {
public:
    /// `sysfs` is the mount point of sysfs.
    explicit ThermalZones(const QString& sysfs);

    /// Returns the level of the worst zone: 3 hot or critical trip reached, 2 passive trip reached (the
    /// kernel throttles the machine), 1 within 10 degrees below, 0 otherwise.
    int level() const;

private:
    using MilliDegrees = qint64;

    struct Zone {
        KernelFile temperature;
        MilliDegrees passive = 0; ///< lowest passive trip; 0 for none
        MilliDegrees hot = 0;     ///< lowest hot or critical trip; 0 for none
    };

    static Zone zoneIn(const QString& folder);
    static int level(const Zone& zone, MilliDegrees temperature);

    std::vector<Zone> m_zones;
};
