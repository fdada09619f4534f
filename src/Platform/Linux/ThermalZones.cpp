#include "Platform/Linux/ThermalZones.h"

#include "Platform/Linux/KernelText.h"
#include "Platform/Log.h"

#include <QDir>

#include <array>

namespace {

constexpr qint64 fairMargin = 10'000;

std::optional<qint64> readNumber(const KernelFile& file) {
    std::array<char, 32> buffer;
    auto text = file.read(buffer);
    return KernelText::takeSignedNumber(text);
}

/// Ignores unused trips, which firmware sets to 0 or far below it.
void keepLowest(qint64& kept, qint64 trip) {
    if (trip > 0 && (kept == 0 || trip < kept))
        kept = trip;
}

} // namespace

ThermalZones::ThermalZones(const QString& sysfs) {
    const QDir thermal(sysfs + QStringLiteral("/class/thermal"));
    const auto names = thermal.entryList({QStringLiteral("thermal_zone*")}, QDir::Dirs);
    for (const auto& name : names) {
        auto zone = zoneIn(thermal.filePath(name));
        if (zone.temperature.isOpen() && (zone.passive > 0 || zone.hot > 0))
            m_zones.push_back(std::move(zone));
        else if (!zone.temperature.isOpen())
            qCInfo(Log::platform) << "no temperature of" << name;
    }
    if (m_zones.empty())
        qCInfo(Log::platform) << "no thermal zone with a trip";
}

ThermalZones::Zone ThermalZones::zoneIn(const QString& folder) {
    const auto path = [&folder](const QString& name) {
        return QFile::encodeName(folder + u'/' + name).toStdString();
    };
    Zone zone;
    zone.temperature = KernelFile(path(QStringLiteral("temp")));
    for (int trip = 0;; ++trip) {
        const auto stem = QStringLiteral("trip_point_%1_").arg(trip);
        const KernelFile type(path(stem + QStringLiteral("type")));
        if (!type.isOpen())
            return zone;
        std::array<char, 32> buffer;
        const auto kind = type.read(buffer);
        const auto temperature = readNumber(KernelFile(path(stem + QStringLiteral("temp"))));
        if (kind.starts_with("passive"))
            keepLowest(zone.passive, temperature.value_or(0));
        else if (kind.starts_with("hot") || kind.starts_with("critical"))
            keepLowest(zone.hot, temperature.value_or(0));
    }
}

int ThermalZones::level(const Zone& zone, MilliDegrees temperature) {
    if (zone.hot > 0 && temperature >= zone.hot)
        return 3;
    if (zone.passive > 0 && temperature >= zone.passive)
        return 2;
    const auto next = zone.passive > 0 ? zone.passive : zone.hot;
    return temperature >= next - fairMargin ? 1 : 0;
}

int ThermalZones::level() const {
    int worst = 0;
    for (const auto& zone : m_zones)
        if (const auto temperature = readNumber(zone.temperature))
            worst = std::max(worst, level(zone, *temperature));
    return worst;
}
