#include "Platform/Linux/LinuxHostStatistics.h"

#include "Platform/Child.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

quint64 usedBytes(const MemoryUse& memory) {
    return memory.activeBytes + memory.wiredBytes + memory.compressedBytes;
}

TEST(HostStatistics, AgreesWithTheSystemsOwnTools) {
    LinuxHostStatistics host;
    const MemoryUse memory = host.memoryUse();
    const auto row = outputOf("LC_ALL=C free -b").split('\n').at(1).simplified().split(' ');
    const double total = row.at(1).toDouble();
    EXPECT_EQ(static_cast<double>(memory.totalBytes), total);
    EXPECT_NEAR(static_cast<double>(usedBytes(memory)), row.at(2).toDouble(), total * 0.02);

    const auto volume = host.rootVolume();
    ASSERT_TRUE(volume);
    const auto sizes = outputOf("df -B1 --output=size,avail /").split('\n').at(1).simplified().split(' ');
    EXPECT_EQ(volume->totalBytes, sizes.at(0).toULongLong());
    EXPECT_NEAR(static_cast<double>(volume->freeBytes), sizes.at(1).toDouble(),
                sizes.at(0).toDouble() * 0.01);

    double swapped = 0;
    for (const auto& area : outputOf("tail -n +2 /proc/swaps").split('\n'))
        if (const auto fields = area.simplified().split(' '); fields.size() > 3)
            swapped += fields.at(3).toDouble() * 1024;
    EXPECT_NEAR(static_cast<double>(memory.swapUsedBytes), swapped, total * 0.01);

    const auto ticks = host.cpuTicks();
    ASSERT_TRUE(ticks);
    EXPECT_GT(ticks->user, 0u);
    EXPECT_GT(ticks->idle, 0u);
    EXPECT_EQ(host.coreTicks().size(), outputOf("getconf _NPROCESSORS_ONLN").toInt());
    ASSERT_TRUE(memory.cacheBytes);
    const double files = row.at(5).toDouble() - row.at(4).toDouble(); // shared memory is not of files
    EXPECT_NEAR(static_cast<double>(*memory.cacheBytes), files, total * 0.02);
}

TEST(HostStatistics, CountsCpuTicksByKind) {
    // user nice system idle iowait irq softirq steal guest guest_nice
    const std::pair<const char*, std::optional<CpuTicks>> cases[] = {
        {"cpu  100 20 30 400 50 6 7 8 90 9\ncpu0 1 1 1 1 1 1 1 1 1 1\n", CpuTicks{100, 51, 450, 20}},
        {"cpu  4294967297 0 0 4294967296 5 0 0 0 0 0\n", CpuTicks{4294967297, 0, 4294967301, 0}},
        {"cpu  3000000000 0 0 3000000000 0 0 0 0 0 0\n", CpuTicks{3000000000, 0, 3000000000, 0}},
        {"cpu  1 2 3 4\n", CpuTicks{1, 3, 4, 2}},
        {"cpu  1 2 3\ncpu0 1 2 3\n", std::nullopt},
        {"", std::nullopt},
        {"intr 5\n", std::nullopt},
    };
    for (const auto& [line, expected] : cases) {
        TemporaryFolder tree;
        tree.makeFile(u"proc/stat"_s, line);
        EXPECT_EQ(LinuxHostStatistics(tree.path()).cpuTicks(), expected) << line;
    }
}

TEST(HostStatistics, CountsTheTicksOfEachCore) {
    TemporaryFolder tree;
    tree.makeFile(u"proc/stat"_s,
                  "cpu  9 9 9 9\ncpu0 10 1 5 70 4 1 2 3 0 0\ncpu1 broken\ncpu3 20 0 0 80\nintr 1\n");
    LinuxHostStatistics host(tree.path());
    EXPECT_TRUE(host.coreTicks().isEmpty()) << "nothing was read yet";
    host.cpuTicks();
    EXPECT_EQ(host.coreTicks(), (QList<CoreTicks>{{.busy = 22, .idle = 74}, {.busy = 20, .idle = 80}}));
    tree.makeFile(u"proc/stat"_s, "cpu  9 9 9 9\ncpu0 10 1 5 7");
    EXPECT_TRUE(host.cpuTicks());
    EXPECT_TRUE(host.coreTicks().isEmpty()) << "a line that is cut short says another number";
}

TEST(HostStatistics, FollowsNoCounterThatStepsBack) {
    const std::pair<const char*, CpuTicks> readings[] = {
        {"cpu  4294967290 0 30 400 50 0 0 0 0 0\n", {4294967290, 30, 450, 0}},
        {"cpu  4294967302 0 31 400 48 0 0 0 0 0\n", {4294967302, 31, 450, 0}},
        {"cpu  100 0 10 200 0 0 0 0 0 0\n", {4294967302, 31, 450, 0}}, // a container that was moved
        {"cpu  104 0 11 203 0 0 0 0 0 0\n", {4294967306, 32, 453, 0}},
    };
    TemporaryFolder tree;
    tree.makeFile(u"proc/stat"_s, {});
    LinuxHostStatistics host(tree.path());
    for (const auto& [line, ticks] : readings) {
        tree.makeFile(u"proc/stat"_s, line);
        EXPECT_EQ(host.cpuTicks(), ticks) << line;
    }
}

/// Figures in KiB, as in meminfo.
struct Memory {
    const char* name;
    QByteArray meminfo;
    std::vector<QByteArray> zram;
    quint64 used = 0;
    quint64 wired = 0;
    quint64 compressed = 0;
};

const QByteArray typical = "MemTotal:  1000000 kB\nMemFree:  100000 kB\nMemAvailable:  400000 kB\n"
                           "Unevictable: 40000 kB\nZswap: 0 kB\nZswapped: 99999 kB\nSUnreclaim: 8000 kB\n"
                           "KernelStack: 4000 kB\nPageTables: 4000 kB\n";

TEST(HostStatistics, SplitsTheMemoryInUse) {
    const Memory cases[] = {
        {"typical", typical, {}, 600000, 56000, 0},
        {"newer_lines", typical + "SecPageTables: 4000 kB\nPercpu: 8000 kB\n", {}, 600000, 68000, 0},
        {"zram",
         typical,
         {"9000000 3000000 4096000 0 8192000 5 0 0 0\n", "  8192 74 2048000 0 12288 0 0 0 0\n"},
         600000,
         56000,
         6000},
        {"zswap", QByteArray(typical).replace("Zswap: 0", "Zswap: 20000"), {}, 600000, 56000, 20000},
        {"zram_without_figures", typical, {"", "1 2\n"}, 600000, 56000, 0},
        {"wired_above_used",
         QByteArray(typical).replace("Unevictable: 40000", "Unevictable: 4000000"),
         {"1 1 4096000\n"},
         600000,
         600000,
         0},
        {"compressed_above_rest", typical, {"1 1 99999999999\n"}, 600000, 56000, 544000},
        {"available_above_total", QByteArray(typical).replace("e:  400000", "e: 1400000"), {}, 0, 0, 0},
        {"no_available", QByteArray(typical).replace("MemAvailable:", "Elsewhere:"), {}},
        {"empty", "", {}}};
    for (const Memory& given : cases) {
        SCOPED_TRACE(given.name);
        TemporaryFolder tree;
        tree.makeFile(u"proc/meminfo"_s, given.meminfo);
        for (size_t device = 0; device < given.zram.size(); ++device)
            tree.makeFile(u"sys/block/zram%1/mm_stat"_s.arg(device), given.zram[device]);
        tree.makeFolder(u"sys/block/sda"_s);
        const MemoryUse memory = LinuxHostStatistics(tree.path()).memoryUse();
        EXPECT_EQ(memory.wiredBytes, given.wired * 1024);
        EXPECT_EQ(memory.compressedBytes, given.compressed * 1024);
        EXPECT_EQ(usedBytes(memory), given.used * 1024);
        EXPECT_EQ(memory.totalBytes, given.meminfo.isEmpty() ? 0U : 1024000000U);
    }
}

TEST(HostStatistics, CountsSwapInUse) {
    const std::vector<std::pair<const char*, quint64>> cases = {
        {"MemTotal: 9 kB\nSwapCached: 7 kB\nSwapTotal: 2000 kB\nSwapFree: 500 kB\n", 1500 * 1024},
        {"SwapTotal: 0 kB\nSwapFree: 0 kB\n", 0},
        {"SwapTotal: 1 kB\nSwapFree: 2 kB\n", 0},
        {"SwapTotal: 2000 kB\n", 0},
    };
    for (const auto& [meminfo, expected] : cases) {
        TemporaryFolder tree;
        tree.makeFile(u"proc/meminfo"_s, meminfo);
        EXPECT_EQ(LinuxHostStatistics(tree.path()).memoryUse().swapUsedBytes, expected) << meminfo;
    }
}

TEST(HostStatistics, RefusesWhatItCannotRead) {
    const TemporaryFolder tree;
    LinuxHostStatistics host(tree.path());
    EXPECT_FALSE(host.cpuTicks());
    EXPECT_EQ(host.memoryUse(), MemoryUse());
    EXPECT_EQ(host.thermalLevel(), 0);
}

struct Zone {
    QByteArray temperature;
    std::vector<std::pair<QByteArray, QByteArray>> trips; // type, temperature
};

Zone laptop(const char* temperature) {
    return {temperature,
            {{"active", "50000"}, {"passive", "90000"}, {"hot", "100000"}, {"critical", "105000"}}};
}

TEST(HostStatistics, TheThermalLevelIsThatOfTheWorstZone) {
    const std::tuple<const char*, std::vector<Zone>, int> cases[] = {
        {"cool", {laptop("79999\n")}, 0},
        {"near_passive", {laptop("80000\n")}, 1},
        {"below_passive", {laptop("89999\n")}, 1},
        {"passive", {laptop("90000\n")}, 2},
        {"hot", {laptop("100000\n")}, 3},
        {"critical_only", {{"95000\n", {{"critical", "95000"}}}}, 3},
        {"near_critical", {{"85000\n", {{"critical", "95000"}}}}, 1},
        {"cool_without_passive", {{"84999\n", {{"critical", "95000"}}}}, 0},
        {"lowest_of_several", {{"70000\n", {{"passive", "90000"}, {"passive", "70000"}}}}, 2},
        {"trips_out_of_use", {{"40000\n", {{"passive", "0"}, {"critical", "-273200"}, {"hot", "x"}}}}, 0},
        {"worst_of_zones", {laptop("40000\n"), laptop("91000\n"), laptop("85000\n")}, 2},
        {"unreadable_zone", {laptop(""), laptop("82000\n")}, 1},
        {"below_zero", {laptop("-5000\n")}, 0},
        {"no_trips", {{"120000\n", {}}}, 0},
        {"no_zones", {}, 0}};
    for (const auto& [name, zones, level] : cases) {
        TemporaryFolder tree;
        tree.makeFolder(u"sys/class/thermal/cooling_device0"_s);
        int number = 0;
        for (const auto& zone : zones) {
            const auto folder = u"sys/class/thermal/thermal_zone%1/"_s.arg(number++);
            tree.makeFile(folder + u"temp"_s, zone.temperature);
            int trip = 0;
            for (const auto& [type, temperature] : zone.trips) {
                const auto stem = folder + u"trip_point_%1_"_s.arg(trip++);
                tree.makeFile(stem + u"type"_s, type + "\n");
                tree.makeFile(stem + u"temp"_s, temperature + "\n");
            }
        }
        EXPECT_EQ(LinuxHostStatistics(tree.path()).thermalLevel(), level) << name;
    }
}

} // namespace

TEST(HostStatistics, TellsWhatProgramsAndFilesHold) {
    TemporaryFolder tree;
    tree.makeFile(u"proc/meminfo"_s, typical + "AnonPages: 300000 kB\nShmem: 20000 kB\n");
    EXPECT_EQ(LinuxHostStatistics(tree.path()).memoryUse().programBytes, 320000U * 1024);
    tree.makeFile(u"proc/meminfo"_s, typical + "AnonPages: 300000 kB\n");
    EXPECT_FALSE(LinuxHostStatistics(tree.path()).memoryUse().programBytes);
    EXPECT_FALSE(LinuxHostStatistics(tree.path()).memoryUse().cacheBytes);
    tree.makeFile(u"proc/meminfo"_s, "Buffers: 10 kB\nCached: 50 kB\nShmem: 20 kB\nSReclaimable: 8 kB\n");
    EXPECT_EQ(LinuxHostStatistics(tree.path()).memoryUse().cacheBytes, 48U * 1024);
}
