#include "Platform/Linux/LinuxProcessMemory.h"

#include "Platform/Linux/KernelText.h"

#include <QDirIterator>
#include <QFile>

#include <time.h>

#include <algorithm>
#include <array>
#include <cstdio>

using KernelText::numberOf;

namespace {

std::chrono::nanoseconds threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::optional<quint64> lineBytes(std::string_view text, std::string_view key) {
    const auto size = numberOf(text, key); // in KiB
    return size ? std::optional(*size * 1024) : std::nullopt;
}

std::optional<quint64> sum(std::optional<quint64> first, std::optional<quint64> second) {
    return first && second ? std::optional(*first + *second) : std::nullopt;
}

/// Returns a number of the file, empty when the kernel does not count it.
std::optional<quint64> countIn(const std::string& path) {
    std::array<char, 64> room;
    auto text = KernelFile(path).read(room);
    return KernelText::takeNumber(text);
}

/// Returns the processes of the group and of all below it.
QList<qint32> pidsBelow(const QString& group) {
    QList<qint32> pids;
    QDirIterator lists(group, {QStringLiteral("cgroup.procs")}, QDir::Files, QDirIterator::Subdirectories);
    while (lists.hasNext()) {
        QFile list(lists.next());
        if (!list.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& pid : list.readAll().split('\n')) {
            if (!pid.isEmpty())
                pids.append(pid.toInt());
        }
    }
    return pids;
}

} // namespace

LinuxProcessMemory::LinuxProcessMemory(const std::string& root, const std::string& controlGroups)
    : m_folder(root)
    , m_controlGroups(controlGroups) {}

ProcessMemoryUse LinuxProcessMemory::parseRollup(std::string_view text) {
    const auto dirty = lineBytes(text, "Pss_Dirty:");
    const auto uniqueDirty = lineBytes(text, "Private_Dirty:");
    return {.proportionalBytes = lineBytes(text, "Pss:"),
            .proportionalDirtyBytes =
                dirty ? dirty : sum(lineBytes(text, "Pss_Anon:"), lineBytes(text, "Pss_Shmem:")),
            .uniqueBytes = sum(uniqueDirty, lineBytes(text, "Private_Clean:")),
            .uniqueDirtyBytes = uniqueDirty,
            .dirtyBytes = sum(uniqueDirty, lineBytes(text, "Shared_Dirty:")),
            .anonymousBytes = lineBytes(text, "Anonymous:"),
            .swapBytes = lineBytes(text, "Swap:"),
            .proportionalSwapBytes = lineBytes(text, "SwapPss:")};
}

ProcessMemoryUse LinuxProcessMemory::parseStatus(std::string_view text) {
    return {.anonymousBytes = lineBytes(text, "RssAnon:"), .swapBytes = lineBytes(text, "VmSwap:")};
}

ProcessMemoryReading LinuxProcessMemory::readAll(qint32 pid) {
    return read(pid, "smaps_rollup", parseRollup);
}

ProcessMemoryReading LinuxProcessMemory::readTotals(qint32 pid) {
    return read(pid, "status", parseStatus);
}

std::optional<ControlGroupMemory> LinuxProcessMemory::controlGroup(qint32 pid) {
    std::array<char, 4096> room;
    const KernelFile file(m_folder.descriptor(), (std::to_string(pid) + "/cgroup").c_str());
    const auto path = KernelText::valueOf(file.read(room), "0::");
    if (!path)
        return std::nullopt;
    const std::string group = m_controlGroups + std::string(*path);
    const auto memory = countIn(group + "/memory.current");
    const KernelFile statistics(group + "/memory.stat");
    const std::string_view text = statistics.read(room);
    const auto files = numberOf(text, "file ");
    const auto swap = countIn(group + "/memory.swap.current");
    if (!memory || !files || !swap)
        return std::nullopt;
    const quint64 cache = *files - std::min(*files, numberOf(text, "shmem ").value_or(0));
    return ControlGroupMemory{.pids = pidsBelow(QString::fromStdString(group)),
                              .memoryBytes = *memory,
                              .cacheBytes = std::min(cache, *memory),
                              .swapBytes = *swap};
}

ProcessMemoryReading LinuxProcessMemory::read(qint32 pid, const char* name,
                                              ProcessMemoryUse (*parse)(std::string_view)) const {
    const auto start = threadTime();
    std::array<char, 32> path;
    std::snprintf(path.data(), path.size(), "%d/%s", pid, name);
    std::array<char, 4096> room;
    const std::string_view text = KernelFile(m_folder.descriptor(), path.data()).read(room);
    const ProcessMemoryUse use = parse(text);
    const bool isKnown =
        use != ProcessMemoryUse(); // an ended process has an empty text or one without figures
    return {.use = isKnown ? std::optional(use) : std::nullopt, .cost = threadTime() - start};
}
