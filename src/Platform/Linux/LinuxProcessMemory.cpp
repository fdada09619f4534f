#include "Platform/Linux/LinuxProcessMemory.h"

#include "Platform/Linux/KernelText.h"

#include <time.h>

#include <array>
#include <cstdio>

using KernelText::numberOf;

namespace {

std::chrono::nanoseconds threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::optional<quint64> bytesOf(std::string_view text, std::string_view key) {
    const auto kib = numberOf(text, key);
    return kib ? std::optional(*kib * 1024) : std::nullopt;
}

std::optional<quint64> sum(std::optional<quint64> first, std::optional<quint64> second) {
    return first && second ? std::optional(*first + *second) : std::nullopt;
}

} // namespace

LinuxProcessMemory::LinuxProcessMemory(const std::string& root)
    : m_folder(root) {}

ProcessMemoryUse LinuxProcessMemory::parseRollup(std::string_view text) {
    const auto dirty = bytesOf(text, "Pss_Dirty:");
    const auto uniqueDirty = bytesOf(text, "Private_Dirty:");
    return {.proportionalBytes = bytesOf(text, "Pss:"),
            .proportionalDirtyBytes =
                dirty ? dirty : sum(bytesOf(text, "Pss_Anon:"), bytesOf(text, "Pss_Shmem:")),
            .uniqueBytes = sum(uniqueDirty, bytesOf(text, "Private_Clean:")),
            .uniqueDirtyBytes = uniqueDirty,
            .anonymousBytes = bytesOf(text, "Anonymous:"),
            .swapBytes = bytesOf(text, "Swap:"),
            .proportionalSwapBytes = bytesOf(text, "SwapPss:")};
}

ProcessMemoryUse LinuxProcessMemory::parseStatus(std::string_view text) {
    return {.anonymousBytes = bytesOf(text, "RssAnon:"), .swapBytes = bytesOf(text, "VmSwap:")};
}

ProcessMemoryReading LinuxProcessMemory::readAll(qint32 pid) {
    return read(pid, "smaps_rollup", parseRollup);
}

ProcessMemoryReading LinuxProcessMemory::readTotals(qint32 pid) {
    return read(pid, "status", parseStatus);
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
