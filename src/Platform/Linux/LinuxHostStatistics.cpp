#include "Platform/Linux/LinuxHostStatistics.h"

#include "Platform/Linux/KernelText.h"

#include <QDir>
#include <QFile>

#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>

using namespace KernelText;

namespace {

constexpr quint64 kib = 1024;

using MeminfoRoom = std::array<char, 8192>;

std::string pathIn(const QString& root, const QString& path) {
    return QFile::encodeName(root + u'/' + path).toStdString();
}

/// A count may step back: a little where the kernel adds up its CPUs anew (proc(5)), far where a container
/// was moved or has fewer CPUs now. To a reader of counters that wrap, such a step would look like 2^32
/// ticks.
void addForwardSteps(CpuTicks& sum, const CpuTicks& last, const CpuTicks& now) {
    for (const auto kind : {&CpuTicks::user, &CpuTicks::system, &CpuTicks::idle, &CpuTicks::nice}) {
        const quint32 step = now.*kind - last.*kind;
        sum.*kind += static_cast<qint32>(step) < 0 ? 0 : step;
    }
}

/// Memory of the kernel's own or locked by programs: nothing of it can be paged out. The lines do not
/// overlap.
quint64 unpageableKib(std::string_view meminfo) {
    quint64 sum = 0;
    for (const auto* key :
         {"Unevictable:", "SUnreclaim:", "KernelStack:", "PageTables:", "SecPageTables:", "Percpu:"})
        sum += numberOf(meminfo, key).value_or(0);
    return sum;
}

} // namespace

LinuxHostStatistics::LinuxHostStatistics(const QString& root)
    : m_pageSize(static_cast<quint64>(sysconf(_SC_PAGESIZE)))
    , m_stat(pathIn(root, QStringLiteral("proc/stat")))
    , m_meminfo(pathIn(root, QStringLiteral("proc/meminfo")))
    , m_zones(root + QStringLiteral("/sys")) {
    const QDir block(root + QStringLiteral("/sys/block"));
    const auto devices = block.entryList({QStringLiteral("zram*")}, QDir::Dirs);
    for (const auto& device : devices)
        if (KernelFile figures(pathIn(root, QStringLiteral("sys/block/%1/mm_stat").arg(device)));
            figures.isOpen())
            m_zram.push_back(std::move(figures));
}

std::optional<CpuTicks> LinuxHostStatistics::cpuTicks() {
    std::array<char, 512> room;
    auto line = m_stat.read(room);
    if (!line.starts_with("cpu "))
        return std::nullopt;
    line.remove_prefix(4);
    line = line.substr(0, line.find('\n'));

    enum { user, nice, system, idle, iowait, irq, softirq, steal, columns };
    std::array<quint64, columns> ticks{};
    for (int column = 0; column < columns; ++column) {
        const auto count = takeNumber(line);
        if (!count && column <= idle)
            return std::nullopt;
        ticks[column] = count.value_or(0); // kernels of old end the line earlier
    }
    const CpuTicks now = {
        .user = static_cast<quint32>(ticks[user]),
        .system = static_cast<quint32>(ticks[system] + ticks[irq] + ticks[softirq] + ticks[steal]),
        .idle = static_cast<quint32>(ticks[idle] + ticks[iowait]),
        .nice = static_cast<quint32>(ticks[nice])};
    if (!m_ticks)
        m_ticks = m_lastTicks = now;
    addForwardSteps(*m_ticks, m_lastTicks, now);
    m_lastTicks = now;
    return m_ticks;
}

std::optional<MemoryPages> LinuxHostStatistics::memoryPages() {
    MeminfoRoom room;
    const auto meminfo = m_meminfo.read(room);
    const auto total = numberOf(meminfo, "MemTotal:");
    const auto available = numberOf(meminfo, "MemAvailable:");
    if (!total || !available)
        return std::nullopt;

    const auto pages = [this](quint64 bytes) { return bytes / m_pageSize; };
    const auto used = pages((*total - std::min(*available, *total)) * kib);
    const auto wired = std::min(pages(unpageableKib(meminfo) * kib), used);
    const auto zswapBytes = numberOf(meminfo, "Zswap:").value_or(0) * kib;
    const auto compressed = std::min(pages(zswapBytes + zramBytes()), used - wired);
    return MemoryPages{.active = used - wired - compressed, .wired = wired, .compressed = compressed};
}

quint64 LinuxHostStatistics::zramBytes() const {
    quint64 sum = 0;
    for (const auto& device : m_zram) {
        std::array<char, 256> room;
        auto figures = device.read(room);
        std::optional<quint64> used;
        for (int column = 0; column < 3; ++column) // orig_data_size, compr_data_size, mem_used_total
            used = takeNumber(figures);
        sum += used.value_or(0);
    }
    return sum;
}

std::optional<quint64> LinuxHostStatistics::swapUsedBytes() {
    MeminfoRoom room;
    const auto meminfo = m_meminfo.read(room);
    const auto total = numberOf(meminfo, "SwapTotal:");
    const auto free = numberOf(meminfo, "SwapFree:");
    if (!total || !free)
        return std::nullopt;
    return (*total - std::min(*free, *total)) * kib;
}

std::optional<VolumeBlocks> LinuxHostStatistics::rootVolume() {
    struct statvfs volume;
    if (statvfs("/", &volume) != 0)
        return std::nullopt;
    return VolumeBlocks{
        .blockSize = volume.f_frsize, .blocks = volume.f_blocks, .blocksAvailable = volume.f_bavail};
}

quint64 LinuxHostStatistics::physicalMemoryBytes() {
    MeminfoRoom room;
    return numberOf(m_meminfo.read(room), "MemTotal:").value_or(0) * kib;
}
