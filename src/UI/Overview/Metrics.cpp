#include "Core/Formatters.h"
#include "Core/Memory/MemoryLineUp.h"
#include "UI/Overview/MetricTile.h"
#include "UI/Style/Levels.h"

#include <QCoreApplication>

namespace {

template <typename Figure> QList<double> series(const QList<SystemSample>& history, Figure figure) {
    QList<double> points;
    points.reserve(history.size());
    for (const SystemSample& sample : history)
        points.append(figure(sample));
    return points;
}

} // namespace

namespace Metrics {

Metric cpu(const SystemSample& sample, const QList<SystemSample>& history) {
    return {.title = QCoreApplication::translate("Metrics", "CPU"),
            .value = Formatters::percent(sample.cpuPercent),
            .sub = std::nullopt,
            .accent = Levels::cpu(sample.cpuPercent),
            .history = series(history, [](const SystemSample& s) { return s.cpuPercent; })};
}

Metric memory(const SystemSample& sample, const QList<SystemSample>& history, const MemoryLineUp& lineUp) {
    const double used = sample.memUsedPercent();
    return {.title = QCoreApplication::translate("Metrics", "Memory"),
            .value = Formatters::percent(used),
            .sub = QStringLiteral("%1 / %2").arg(Formatters::bytes(sample.memUsedBytes),
                                                 Formatters::bytes(sample.memTotalBytes)),
            .accent = Levels::memory(used),
            .history = series(history, [](const SystemSample& s) { return s.memUsedPercent(); }),
            .toolTip = lineUp.lines().join(u'\n')};
}

Metric disk(const SystemSample& sample) {
    const double used = sample.diskUsedPercent();
    return {
        .title = QCoreApplication::translate("Metrics", "Disk"),
        .value = Formatters::percent(used),
        .sub = QCoreApplication::translate("Metrics", "%1 free").arg(Formatters::bytes(sample.diskFreeBytes)),
        .accent = Levels::disk(used),
        .history = {}};
}

Metric thermal(const SystemSample& sample) {
    const bool swapping = sample.swapUsedBytes > 0;
    return {.title = QCoreApplication::translate("Metrics", "Thermal"),
            .value = thermalLabel(sample.thermalState),
            .sub = swapping ? QCoreApplication::translate("Metrics", "Swap %1")
                                  .arg(Formatters::bytes(sample.swapUsedBytes))
                            : QCoreApplication::translate("Metrics", "No swap"),
            .accent = Levels::thermal(sample.thermalState),
            .history = {}};
}

QList<Metric> all(const SystemSample& sample, const QList<SystemSample>& history,
                  const MemoryLineUp& lineUp) {
    return {cpu(sample, history), memory(sample, history, lineUp), disk(sample), thermal(sample)};
}

} // namespace Metrics
