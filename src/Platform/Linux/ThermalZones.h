#pragma once

#include "Platform/Linux/KernelFile.h"

#include <QString>

#include <vector>

/// The thermal zones of `class/thermal` in sysfs, each judged by its own trip points. Zones and trips are
/// found once; a reading is one read a zone.
class ThermalZones {
public:
    /// `sysfs` is where sysfs is mounted.
    explicit ThermalZones(const QString& sysfs);

    /// The worst zone: 3 a hot or critical trip is reached, 2 a passive one (the kernel slows the machine
    /// down there), 1 within 10 degrees below, 0 none of these or no zone.
    int level() const;

private:
    using MilliDegrees = qint64;

    struct Zone {
        KernelFile temperature;
        MilliDegrees passive = 0; ///< lowest such trip; 0 when there is none
        MilliDegrees hot = 0;     ///< lowest of the hot and critical trips; 0 when there is none
    };

    static Zone zoneIn(const QString& folder);
    static int level(const Zone& zone, MilliDegrees temperature);

    std::vector<Zone> m_zones;
};
