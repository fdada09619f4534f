#include "Platform/Linux/LinuxProcessMemory.h"

#include "Platform/Child.h"
#include "support/Bytes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace {

char* touched(size_t bytes) {
    void* area = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    madvise(area, bytes, MADV_NOHUGEPAGE);
    std::memset(area, 1, bytes);
    return static_cast<char*>(area);
}

/// Forks a child that touches so much memory of its own and waits.
std::unique_ptr<Child> childWith(size_t ownBytes) {
    auto child = std::make_unique<Child>([ownBytes](int socket) {
        if (ownBytes > 0)
            touched(ownBytes);
        char command = 'r';
        (void)!write(socket, &command, 1);
        (void)!read(socket, &command, 1);
    });
    child->heard();
    return child;
}

double difference(std::optional<quint64> a, std::optional<quint64> b) {
    return double(a.value()) - double(b.value());
}

} // namespace

TEST(ProcessMemoryTest, SharedPagesAreDividedAndOwnOnesAreNot) {
    constexpr size_t shared = 40 * MiB;
    constexpr size_t own = 10 * MiB;
    constexpr double tolerance = 8 * MiB; // the sanitizers add an eighth of what is touched
    const auto control = childWith(0);    // shares all but the area
    char* area = touched(shared);
    std::vector<std::unique_ptr<Child>> children;
    for (int i = 0; i < 3; ++i)
        children.push_back(childWith(own));
    LinuxProcessMemory memory;
    const auto reading = memory.readAll(children[0]->pid());
    const auto controlReading = memory.readAll(control->pid());
    munmap(area, shared);
    ASSERT_TRUE(reading.use && controlReading.use);
    const ProcessMemoryUse& use = *reading.use;
    const ProcessMemoryUse& less = *controlReading.use;
    const double quarter = double(own + shared / 4);
    EXPECT_NEAR(difference(use.proportionalDirtyBytes, less.proportionalDirtyBytes), quarter, tolerance);
    EXPECT_NEAR(difference(use.proportionalBytes, less.proportionalBytes), quarter, tolerance);
    EXPECT_NEAR(difference(use.uniqueDirtyBytes, less.uniqueDirtyBytes), double(own), tolerance);
    EXPECT_NEAR(difference(use.anonymousBytes, less.anonymousBytes), double(own + shared), tolerance);
    EXPECT_GE(*use.uniqueBytes, *use.uniqueDirtyBytes);
    EXPECT_EQ(use.swapBytes.has_value(), use.proportionalSwapBytes.has_value());
    EXPECT_GT(reading.cost.count(), 0);

    const auto totals = memory.readTotals(children[0]->pid());
    ASSERT_TRUE(totals.use);
    EXPECT_NEAR(double(*totals.use->anonymousBytes), double(*use.anonymousBytes), 1.0 * MiB);
    EXPECT_LT(totals.cost, reading.cost);
}

TEST(ProcessMemoryTest, AnEndedProcessAndOneWithoutMemoryHaveNoFigures) {
    LinuxProcessMemory memory;
    Child child([](int) {});
    char ended = 0;
    EXPECT_EQ(child.heard(), ended); // a zombie until it is reaped
    EXPECT_FALSE(memory.readAll(child.pid()).use);
    EXPECT_FALSE(memory.readTotals(child.pid()).use);
    child.end();
    EXPECT_FALSE(memory.readAll(child.pid()).use);
    EXPECT_FALSE(memory.readTotals(child.pid()).use);
    EXPECT_FALSE(LinuxProcessMemory("/nowhere").readAll(getpid()).use);
}

TEST(ProcessMemoryTest, AControlGroupIsCountedWithAllBelowIt) {
    const QTemporaryDir root;
    const auto write = [&root](const QString& path, const QByteArray& text) {
        QDir(root.path()).mkpath(QFileInfo(path).path());
        QFile file(root.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    };
    write(QStringLiteral("proc/7/cgroup"), "1:name=systemd:/x\n0::/app.scope\n");
    write(QStringLiteral("group/app.scope/cgroup.procs"), "7\n");
    write(QStringLiteral("group/app.scope/below/cgroup.procs"), "9\n8\n");
    LinuxProcessMemory memory(root.filePath(QStringLiteral("proc")).toStdString(),
                              root.filePath(QStringLiteral("group")).toStdString());
    EXPECT_FALSE(memory.controlGroup(7)) << "the kernel counts no memory for it";
    write(QStringLiteral("group/app.scope/memory.current"), "1000\n");
    write(QStringLiteral("group/app.scope/memory.stat"), "anon 500\nfile 400\nkernel 100\nshmem 150\n");
    EXPECT_FALSE(memory.controlGroup(7)) << "its swap is unknown";
    write(QStringLiteral("group/app.scope/memory.swap.current"), "70\n");
    const auto group = memory.controlGroup(7);
    ASSERT_TRUE(group);
    QList<qint32> pids = group->pids;
    std::ranges::sort(pids);
    EXPECT_EQ(pids, (QList<qint32>{7, 8, 9}));
    EXPECT_EQ(group->memoryBytes, 1000U);
    EXPECT_EQ(group->cacheBytes, 250U);
    EXPECT_EQ(group->swapBytes, 70U);
    EXPECT_FALSE(memory.controlGroup(8));
}

TEST(ProcessMemoryTest, LinesThatAKernelLacksAreUnknown) {
    const ProcessMemoryUse old =
        LinuxProcessMemory::parseRollup("00400000-7ffe ---p 00000000 00:00 0 [rollup]\n"
                                        "Rss:                 884 kB\n"
                                        "Pss:                 385 kB\n"
                                        "Pss_Anon:            301 kB\n"
                                        "Pss_Shmem:             4 kB\n"
                                        "Private_Clean:       100 kB\n"
                                        "Private_Dirty:        92 kB\n"
                                        "Anonymous:           301 kB\n");
    EXPECT_EQ(old, (ProcessMemoryUse{.proportionalBytes = 385 << 10,
                                     .proportionalDirtyBytes = 305 << 10,
                                     .uniqueBytes = 192 << 10,
                                     .uniqueDirtyBytes = 92 << 10,
                                     .anonymousBytes = 301 << 10}));
    EXPECT_EQ(LinuxProcessMemory::parseRollup("Pss: x kB\nSwap: 99999999999999999999 kB"),
              ProcessMemoryUse());
    EXPECT_EQ(LinuxProcessMemory::parseStatus("Name:\ta\nVmSwap:\t     8 kB\n"),
              (ProcessMemoryUse{.swapBytes = 8 << 10}));
}
