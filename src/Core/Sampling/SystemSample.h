#pragma once

#include "Core/Instant.h"
#include "Core/RawValue.h"
#include "Platform/Pressure.h"

#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

#include <array>

enum class ThermalState { nominal, fair, serious, critical };

template <>
inline constexpr std::array rawValueTable<ThermalState> = {
    RawValueRow{ThermalState::nominal, u"nominal"},
    RawValueRow{ThermalState::fair, u"fair"},
    RawValueRow{ThermalState::serious, u"serious"},
    RawValueRow{ThermalState::critical, u"critical"},
};

/// Returns "Cool", "Warm", "Hot" or "Critical".
QString thermalLabel(ThermalState state);

/// One reading of the whole machine.
struct SystemSample {
    QUuid id;
    Instant timestamp;
    double cpuPercent = 0;
    QList<double> cpuPerCore;
    quint64 memUsedBytes = 0; ///< active + wired + compressed
    quint64 memTotalBytes = 0;
    quint64 memWiredBytes = 0;
    quint64 memCompressedBytes = 0;
    std::optional<quint64> memProgramBytes = {}; ///< anonymous and shared memory of all programs
    std::optional<quint64> memCacheBytes = {};   ///< of files in memory, which can be given back
    quint64 swapUsedBytes = 0;
    quint64 swapTotalBytes = 0;
    quint64 diskFreeBytes = 0; ///< of the root volume, for an ordinary user
    quint64 diskTotalBytes = 0;
    ThermalState thermalState = ThermalState::nominal;
    std::optional<PressureLevel> memoryPressure = {}; ///< empty where the system does not tell
    std::optional<PressureLevel> diskPressure = {};

    bool operator==(const SystemSample&) const = default;

    /// Returns the sample before the first reading, always with the same `id`.
    static const SystemSample& zero();

    double memUsedPercent() const;  ///< 0 when the total is 0
    double diskUsedPercent() const; ///< 0 when the total is 0
    /// Returns the bytes that programs can still get, in memory and in swap; 0 when the total is 0.
    quint64 leftBytes() const;
};
