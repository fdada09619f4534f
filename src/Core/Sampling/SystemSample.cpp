#include "Core/Sampling/SystemSample.h"

#include <QCoreApplication>

#include <algorithm>

QString thermalLabel(ThermalState state) {
    constexpr const char* labels[] = {
        QT_TRANSLATE_NOOP("ThermalState", "Cool"), QT_TRANSLATE_NOOP("ThermalState", "Warm"),
        QT_TRANSLATE_NOOP("ThermalState", "Hot"), QT_TRANSLATE_NOOP("ThermalState", "Critical")};
    return QCoreApplication::translate("ThermalState", labels[static_cast<int>(state)]);
}

const SystemSample& SystemSample::zero() {
    static const SystemSample sample = [] {
        SystemSample made;
        made.id = QUuid::createUuid();
        made.timestamp = std::chrono::system_clock::now();
        return made;
    }();
    return sample;
}

double SystemSample::memUsedPercent() const {
    return memTotalBytes == 0 ? 0
                              : static_cast<double>(memUsedBytes) / static_cast<double>(memTotalBytes) * 100;
}

double SystemSample::diskUsedPercent() const {
    if (diskTotalBytes == 0)
        return 0;
    const double used = static_cast<double>(diskTotalBytes) - static_cast<double>(diskFreeBytes);
    return used / static_cast<double>(diskTotalBytes) * 100;
}

quint64 SystemSample::leftBytes() const {
    return memTotalBytes - std::min(memUsedBytes, memTotalBytes) + swapTotalBytes -
           std::min(swapUsedBytes, swapTotalBytes);
}
