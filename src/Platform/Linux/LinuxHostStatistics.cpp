#include "Platform/Linux/LinuxHostStatistics.h"

#include "Platform/Linux/KernelText.h"
#include "Platform/Log.h"

#include <QDir>
#include <QFile>

#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>

using namespace KernelText;

namespace {

constexpr quint64 kib = 1024;
constexpr std::size_t longestCpuLine = 256;

std::string pathIn(const QString& root, const QString& path) {
    return QFile::encodeName(root + u'/' + path).toStdString();
}

/// Takes the counts of a line of `/proc/stat`, after its name. Returns an empty optional for a line that says
/// less than the oldest kernels do.
std::optional<CpuTicks> ticksOf(std::string_view line) {
    enum { user, nice, system, idle, iowait, irq, softirq, steal, columns };
    std::array<quint64, columns> ticks{};
    for (int column = 0; column < columns; ++column) {
        const auto count = takeNumber(line);
        if (!count && column <= idle)
            return std::nullopt;
        ticks[column] = count.value_or(0); // old kernels end the line earlier
    }
    return CpuTicks{.user = ticks[user],
                    .system = ticks[system] + ticks[irq] + ticks[softirq] + ticks[steal],
                    .idle = ticks[idle] + ticks[iowait],
                    .nice = ticks[nice]};
}

/// Adds increases only. A count decreases a little when the kernel sums up its CPUs anew (proc(5)), and much
/// when a container was moved or lost CPUs.
void addForwardSteps(CpuTicks& sum, const CpuTicks& last, const CpuTicks& now) {
    for (const auto kind : {&CpuTicks::user, &CpuTicks::system, &CpuTicks::idle, &CpuTicks::nice})
        sum.*kind += now.*kind - std::min(last.*kind, now.*kind);
}

quint64 bytesOf(std::string_view meminfo, std::string_view key) {
    return numberOf(meminfo, key).value_or(0) * kib;
}

/// Returns total less free, or 0 unless both are known.
quint64 usedBytes(std::string_view meminfo, std::string_view total, std::string_view free) {
    const auto freeKib = numberOf(meminfo, free);
    const quint64 bytes = bytesOf(meminfo, total);
    return freeKib ? bytes - std::min(*freeKib * kib, bytes) : 0;
}

/// Sums up the memory of the kernel and of programs that cannot be paged out. The lines do not overlap.
quint64 unpageableBytes(std::string_view meminfo) {
    quint64 sum = 0;
    for (const auto* key :
         {"Unevictable:", "SUnreclaim:", "KernelStack:", "PageTables:", "SecPageTables:", "Percpu:"})
        sum += bytesOf(meminfo, key);
    return sum;
}

std::optional<quint64> cacheBytes(std::string_view meminfo) {
    const auto cached = numberOf(meminfo, "Cached:");
    if (!cached)
        return std::nullopt;
    const quint64 files =
        *cached + numberOf(meminfo, "Buffers:").value_or(0) + numberOf(meminfo, "SReclaimable:").value_or(0);
    return (files - std::min(files, numberOf(meminfo, "Shmem:").value_or(0))) * kib;
}

std::optional<quint64> programBytes(std::string_view meminfo) {
    const auto anonymous = numberOf(meminfo, "AnonPages:");
    const auto shared = numberOf(meminfo, "Shmem:");
    return anonymous && shared ? std::optional((*anonymous + *shared) * kib) : std::nullopt;
}

} // namespace

LinuxHostStatistics::LinuxHostStatistics(const QString& root)
    : m_stat(pathIn(root, QStringLiteral("proc/stat")))
    , m_statBuffer((2 + std::max(0L, sysconf(_SC_NPROCESSORS_CONF))) * longestCpuLine)
    , m_meminfo(pathIn(root, QStringLiteral("proc/meminfo")))
    , m_zones(root + QStringLiteral("/sys")) {
    if (!m_stat.isOpen() || !m_meminfo.isOpen())
        qCWarning(Log::platform) << "no figures of load or of memory";
    const QDir block(root + QStringLiteral("/sys/block"));
    const auto devices = block.entryList({QStringLiteral("zram*")}, QDir::Dirs);
    for (const auto& device : devices)
        if (KernelFile figures(pathIn(root, QStringLiteral("sys/block/%1/mm_stat").arg(device)));
            figures.isOpen())
            m_zram.push_back(std::move(figures));
}

std::optional<CpuTicks> LinuxHostStatistics::cpuTicks() {
    const auto text = m_stat.read(m_statBuffer);
    m_statLines = text.substr(0, text.rfind('\n') + 1);
    if (!m_statLines.starts_with("cpu "))
        return std::nullopt;
    const auto now = ticksOf(m_statLines.substr(4, m_statLines.find('\n') - 4));
    if (!now)
        return std::nullopt;
    if (!m_ticks)
        m_ticks = m_lastTicks = *now;
    addForwardSteps(*m_ticks, m_lastTicks, *now);
    m_lastTicks = *now;
    return m_ticks;
}

QList<CoreTicks> LinuxHostStatistics::coreTicks() {
    QList<CoreTicks> result;
    for (std::string_view rest = m_statLines; rest.starts_with("cpu");
         rest.remove_prefix(rest.find('\n') + 1)) {
        const auto line = rest.substr(0, rest.find('\n'));
        const auto gap = line.find(' ');
        if (gap == 3) // the line of all together
            continue;
        if (const auto ticks = ticksOf(line.substr(std::min(gap, line.size()))))
            result.append({.busy = ticks->user + ticks->nice + ticks->system, .idle = ticks->idle});
    }
    return result;
}

MemoryUse LinuxHostStatistics::memoryUse() {
    std::array<char, 8192> buffer;
    const auto meminfo = m_meminfo.read(buffer);
    const auto used = usedBytes(meminfo, "MemTotal:", "MemAvailable:");
    const auto wired = std::min(unpageableBytes(meminfo), used);
    const auto compressed = std::min(bytesOf(meminfo, "Zswap:") + zramBytes(), used - wired);
    return {.activeBytes = used - wired - compressed,
            .wiredBytes = wired,
            .compressedBytes = compressed,
            .swapUsedBytes = usedBytes(meminfo, "SwapTotal:", "SwapFree:"),
            .swapTotalBytes = bytesOf(meminfo, "SwapTotal:"),
            .totalBytes = bytesOf(meminfo, "MemTotal:"),
            .programBytes = programBytes(meminfo),
            .cacheBytes = cacheBytes(meminfo)};
}

quint64 LinuxHostStatistics::zramBytes() const {
    quint64 sum = 0;
    for (const auto& device : m_zram) {
        std::array<char, 256> buffer;
        auto figures = device.read(buffer);
        std::optional<quint64> used;
        for (int column = 0; column < 3; ++column) // orig_data_size, compr_data_size, mem_used_total
            used = takeNumber(figures);
        sum += used.value_or(0);
    }
    return sum;
}

std::optional<VolumeSize> LinuxHostStatistics::rootVolume() {
    struct statvfs volume;
    if (statvfs("/", &volume) != 0)
        return std::nullopt;
    return VolumeSize{.totalBytes = volume.f_blocks * volume.f_frsize,
                      .freeBytes = volume.f_bavail * volume.f_frsize};
}
