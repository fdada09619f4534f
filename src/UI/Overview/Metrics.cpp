#include "Core/Formatters.h"
#include "Core/Memory/MemoryLineUp.h"
#include "UI/Overview/MetricTile.h"
#include "UI/Style/Levels.h"

#include <QCoreApplication>

#include <algorithm>

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

namespace {

constexpr double leastShownPressure = 0.5; // percent; less is rounded to nothing

QString memoryText(const SystemSample& sample) {
    const QString size = QStringLiteral("%1 / %2").arg(Formatters::bytes(sample.memUsedBytes),
                                                       Formatters::bytes(sample.memTotalBytes));
    const double pressure = sample.memoryPressure.value_or(PressureLevel()).some;
    if (pressure < leastShownPressure)
        return size;
    return QCoreApplication::translate("Metrics", "%1 • pressure %2", "used memory; a share of time")
        .arg(size, Formatters::percent(pressure));
}

QStringList pressureLines(const SystemSample& sample) {
    QStringList lines;
    if (const auto& level = sample.memoryPressure)
        lines.append(QCoreApplication::translate(
                         "Metrics", "Programs waited %1 of the last ten seconds for memory, all of them %2")
                         .arg(Formatters::percent(level->some), Formatters::percent(level->full)));
    if (const auto& level = sample.diskPressure)
        lines.append(QCoreApplication::translate(
                         "Metrics", "Programs waited %1 of the last ten seconds for disks, all of them %2")
                         .arg(Formatters::percent(level->some), Formatters::percent(level->full)));
    return lines;
}

/// Returns the pressure of the history, nothing when there was none.
QList<double> pressureSeries(const QList<SystemSample>& history) {
    const QList<double> points = series(
        history, [](const SystemSample& s) { return s.memoryPressure.value_or(PressureLevel()).some; });
    const bool hasAny =
        std::ranges::any_of(points, [](double percent) { return percent >= leastShownPressure; });
    return hasAny ? points : QList<double>();
}

} // namespace

Metric memory(const SystemSample& sample, const QList<SystemSample>& history, const MemoryLineUp& lineUp) {
    const double used = sample.memUsedPercent();
    return {.title = QCoreApplication::translate("Metrics", "Memory"),
            .value = Formatters::percent(used),
            .sub = memoryText(sample),
            .accent = Levels::memory(used),
            .history = series(history, [](const SystemSample& s) { return s.memUsedPercent(); }),
            .toolTip = (lineUp.lines() + pressureLines(sample)).join(u'\n'),
            .pressure = pressureSeries(history)};
}

Metric disk(const SystemSample& sample) {
    if (sample.diskTotalBytes == 0)
        return {.title = QCoreApplication::translate("Metrics", "Disk"),
                .value = QStringLiteral("—"),
                .sub = std::nullopt,
                .accent = Theme::Role::secondaryText,
                .history = {}};
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
    const QList<double> times = series(history, [](const SystemSample& s) { return secondsOf(s.timestamp); });
    QList<Metric> metrics{cpu(sample, history), memory(sample, history, lineUp), disk(sample),
                          thermal(sample)};
    for (Metric& metric : metrics) {
        if (!metric.history.isEmpty())
            metric.times = times;
    }
    return metrics;
}

} // namespace Metrics
