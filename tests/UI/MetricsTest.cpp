#include "Core/Memory/MemoryLineUp.h"
#include "Core/Sampling/SystemSample.h"

#include "UI/Overview/MetricTile.h"
#include "UI/Overview/Sparkline.h"
#include "support/Bytes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using Theme::Role;

namespace {

SystemSample withCpu(double percent) {
    return {.cpuPercent = percent};
}

SystemSample withMemory(double percent) {
    return {.memUsedBytes = static_cast<quint64>(percent * 1000), .memTotalBytes = 100000};
}

SystemSample withDisk(double usedPercent) {
    return {.diskFreeBytes = static_cast<quint64>((100 - usedPercent) * 1000), .diskTotalBytes = 100000};
}

} // namespace

TEST(Metrics, MemoryTellsThePressureWhileThereIsAny) {
    SystemSample sample = withMemory(50);
    EXPECT_FALSE(Metrics::memory(sample, {sample}, {}).sub->contains(u"pressure"));
    sample.memoryPressure = PressureLevel{.some = 0.4};
    EXPECT_FALSE(Metrics::memory(sample, {sample}, {}).sub->contains(u"pressure"));
    EXPECT_TRUE(Metrics::memory(sample, {sample}, {}).pressure.isEmpty());
    sample.memoryPressure = PressureLevel{.some = 12.4, .full = 3};
    const Metric metric = Metrics::memory(sample, {withMemory(50), sample}, {});
    EXPECT_TRUE(metric.sub->endsWith(u"• pressure 12%"));
    EXPECT_EQ(metric.pressure, (QList<double>{0, 12.4}));
    EXPECT_TRUE(
        metric.toolTip.contains(u"Programs waited 12% of the last ten seconds for memory, all of them 3%"));
}

TEST(Metrics, ColoursAreDecidedOnUnroundedFigures) {
    const std::tuple<Metric, const char16_t*, Role> cases[] = {
        {Metrics::cpu(withCpu(59.9), {}), u"60%", Role::green},
        {Metrics::cpu(withCpu(60), {}), u"60%", Role::orange},
        {Metrics::cpu(withCpu(84.9), {}), u"85%", Role::orange},
        {Metrics::cpu(withCpu(85), {}), u"85%", Role::red},
        {Metrics::memory(withMemory(69.9), {}, {}), u"70%", Role::green},
        {Metrics::memory(withMemory(70), {}, {}), u"70%", Role::orange},
        {Metrics::memory(withMemory(88), {}, {}), u"88%", Role::red},
        {Metrics::memory(SystemSample(), {}, {}), u"0%", Role::green},
        {Metrics::disk(withDisk(79.9)), u"80%", Role::green},
        {Metrics::disk(withDisk(80)), u"80%", Role::orange},
        {Metrics::disk(withDisk(92)), u"92%", Role::red},
        {Metrics::disk(SystemSample()), u"—", Role::secondaryText},
    };
    for (const auto& [metric, value, accent] : cases) {
        EXPECT_EQ(metric.value, QString::fromUtf16(value)) << qPrintable(metric.title);
        EXPECT_EQ(metric.accent, accent) << qPrintable(metric.title) << qPrintable(metric.value);
    }
}

TEST(Metrics, SecondLinesTellSizesAndSwap) {
    SystemSample sample;
    sample.memUsedBytes = GiB * 3 / 2;
    sample.memTotalBytes = 8 * GiB;
    sample.diskFreeBytes = 512 * GiB / 1024;
    sample.diskTotalBytes = GiB;
    EXPECT_EQ(Metrics::memory(sample, {}, {}).sub, QStringLiteral("1.5 GB / 8 GB"));
    EXPECT_EQ(Metrics::disk(sample).sub, QStringLiteral("512 MB free"));
    EXPECT_EQ(Metrics::thermal(sample).sub, QStringLiteral("No swap"));
    sample.swapUsedBytes = 2 * GiB;
    sample.thermalState = ThermalState::serious;
    EXPECT_EQ(Metrics::thermal(sample).sub, u"Swap 2 GB"_s);
    EXPECT_EQ(Metrics::thermal(sample).value, u"Hot"_s);
    EXPECT_EQ(Metrics::thermal(sample).accent, Role::orange);
}

TEST(Metrics, HistoryGivesOnePointASampleAndZeroWithoutATotal) {
    const QList<SystemSample> history{withMemory(25), SystemSample(), withMemory(50)};
    EXPECT_EQ(Metrics::memory(withMemory(50), history, {}).history, (QList<double>{25, 0, 50}));
    EXPECT_EQ(Metrics::cpu(withCpu(5), {withCpu(1), withCpu(2)}).history, (QList<double>{1, 2}));
}

TEST(Sparkline, ScalesToItsLargestValueButAtLeastOne) {
    const QSizeF size(90, 30);
    EXPECT_TRUE(Sparkline::points({}, size).isEmpty());
    EXPECT_TRUE(Sparkline::points({5}, size).isEmpty());
    EXPECT_EQ(Sparkline::points({0, 50}, size), (QPolygonF{{0, 30}, {90, 0}}));
    EXPECT_EQ(Sparkline::points({0, 0.5, 0, 0.5}, size), (QPolygonF{{0, 30}, {30, 15}, {60, 30}, {90, 15}}));
}

TEST(Sparkline, ALongHistoryKeepsItsPeaks) {
    QList<double> values(3600, 0.0);
    values[1800] = 100;
    values[2700] = 50;
    Sparkline sparkline;
    sparkline.resize(100, sparkline.height());
    sparkline.set(values, Qt::black);
    const QImage picture = sparkline.grab().toImage();
    const auto inkIn = [&](int x, int y) { return picture.pixelColor(x, y) != picture.pixelColor(0, 0); };
    EXPECT_TRUE(inkIn(50, 2));
    EXPECT_FALSE(inkIn(75, 2));
    EXPECT_TRUE(inkIn(75, picture.height() / 2 + 2));
    EXPECT_TRUE(inkIn(25, picture.height() - 1));
    EXPECT_FALSE(inkIn(25, picture.height() / 2));
}
