#include "Core/Sampler.h"

#include "Platform/Clock.h"
#include "Platform/Platform.h"
#include "Platform/ProcessTable.h"

#include <array>

namespace {

constexpr std::size_t maximumPids = 4096;
constexpr qsizetype partThatMayBeGone = 8; ///< one in so many, before their texts are dropped
constexpr double busyPercent = 0.5;        ///< below it a process counts as idle

double secondsBetween(std::chrono::steady_clock::time_point from, std::chrono::steady_clock::time_point to) {
    return std::chrono::duration<double>(to - from).count();
}

ThermalState thermalState(int level) {
    switch (level) {
    case 1:
        return ThermalState::fair;
    case 2:
        return ThermalState::serious;
    case 3:
        return ThermalState::critical;
    default:
        return ThermalState::nominal;
    }
}

/// The difference of two counters that wrap at 2^32.
double delta(quint32 current, quint32 previous) {
    return static_cast<double>(quint32(current - previous));
}

} // namespace

Sampler::Sampler(const Platform& platform)
    : host(platform.host)
    , table(platform.processes)
    , clock(platform.clock)
    , pageSize(host->pageSize()) {}

SystemSample Sampler::sample() {
    SystemSample sample;
    sample.id = QUuid::createUuid();
    sample.timestamp = clock->now();
    sample.cpuPercent = cpuLoad();
    const MemoryPages memory = host->memoryPages().value_or(MemoryPages());
    sample.memUsedBytes = (memory.active + memory.wired + memory.compressed) * pageSize;
    sample.memWiredBytes = memory.wired * pageSize;
    sample.memCompressedBytes = memory.compressed * pageSize;
    sample.swapUsedBytes = host->swapUsedBytes().value_or(0);
    const VolumeBlocks root = host->rootVolume().value_or(VolumeBlocks());
    sample.diskFreeBytes = root.blocksAvailable * root.blockSize;
    sample.diskTotalBytes = root.blocks * root.blockSize;
    sample.thermalState = thermalState(host->thermalLevel());
    sample.memTotalBytes = host->physicalMemoryBytes();
    return sample;
}

double Sampler::cpuLoad() {
    const auto ticks = host->cpuTicks();
    if (!ticks)
        return 0;
    const auto previous = std::exchange(prevHostCPU, ticks);
    if (!previous)
        return 0;
    const double busy = delta(ticks->user, previous->user) + delta(ticks->system, previous->system) +
                        delta(ticks->nice, previous->nice);
    const double total = busy + delta(ticks->idle, previous->idle);
    return total > 0 ? busy / total * 100 : 0;
}

QList<ProcSample> Sampler::sampleProcesses() {
    std::array<qint32, maximumPids> pids{};
    const int listed = table->listAllPids(pids);
    if (listed < 1)
        return {};
    const Instant now = clock->now();
    const Uptime uptime = clock->uptime();
    ++pass;

    QList<ProcSample> result;
    result.reserve(listed);
    for (int i = 0; i < listed; ++i) {
        const qint32 pid = pids[static_cast<std::size_t>(i)];
        if (pid < 1)
            continue;
        auto entry = known.find(pid);
        if (entry != known.end())
            entry->prev.pass = pass;
        const auto task = table->taskInfo(pid);
        if (!task)
            continue;
        if (entry == known.end())
            entry = known.insert(pid, {.prev = {}, .staticCache = lookUp(pid, now)});
        const double percent = cpuPercent(entry->prev, task->cpuTimeNs, uptime);
        const StaticMeta& meta = entry->staticCache;
        result.append({.pid = pid,
                       .parentPid = meta.ppid,
                       .uid = meta.uid,
                       .name = meta.name,
                       .executablePath = meta.path,
                       .arguments = meta.args,
                       .cpuPercent = percent,
                       .rssBytes = task->residentBytes,
                       .virtualBytes = task->virtualBytes,
                       .threads = task->threads,
                       .startTime = meta.startTime,
                       .idleSeconds = secondsBetween(entry->prev.lastNonZero, uptime),
                       .group = ProcGroup::other});
    }
    evictUnseen();
    return result;
}

bool Sampler::isReplaced(qint32 pid) const {
    const auto listed = known.constFind(pid);
    const auto running = table->kernelInfo(pid);
    return listed != known.cend() && running && running->startTicks != listed->staticCache.startTicks;
}

/// Turns the process's cumulative time into a share of a core since its last reading, and remembers it.
double Sampler::cpuPercent(PrevCPU& cpu, quint64 totalNs, Uptime now) const {
    const bool firstSight = cpu.sampledAt == Uptime();
    const double elapsed = secondsBetween(cpu.sampledAt, now);
    double percent = 0;
    if (!firstSight && elapsed > 0 && totalNs >= cpu.totalNs)
        percent = static_cast<double>(totalNs - cpu.totalNs) / 1e9 / elapsed * 100;
    if (firstSight || percent > busyPercent)
        cpu.lastNonZero = now;
    cpu.totalNs = totalNs;
    cpu.sampledAt = now;
    cpu.pass = pass;
    return percent;
}

/// Many processes of a machine are copies of each other: the same text then costs memory, and a pass a
/// trip to it, once.
QString Sampler::interned(const QString& text) {
    return *texts.insert(text);
}

/// The texts of processes that went are dropped now and then, as looking for them costs a walk over all. They
/// must not pile up: the arguments of a compiler are long, and a build starts thousands.
void Sampler::evictUnseen() {
    gone += known.removeIf([this](const auto& entry) { return entry->prev.pass != pass; });
    if (gone * partThatMayBeGone <= known.size())
        return;
    texts.removeIf([](const QString& text) { return text.isDetached(); }); // nobody else has it
    gone = 0;
}

Sampler::StaticMeta Sampler::lookUp(qint32 pid, Instant now) {
    const ProcessOrigin origin = table->origin(pid);
    StaticMeta meta;
    meta.path = interned(QString::fromUtf8(origin.executablePath));
    meta.name = interned(procName(pid, origin.shortName, meta.path));
    meta.args = interned(procArgs(origin.argumentArea));
    meta.startTime = now;
    if (const auto& info = origin.kernelInfo) {
        meta.uid = info->uid;
        meta.ppid = info->parentPid;
        meta.startTime = info->start;
        meta.startTicks = info->startTicks;
    }
    return meta;
}

QString Sampler::procName(qint32 pid, const QByteArray& shortName, const QString& fallbackPath) {
    if (!shortName.isEmpty())
        return QString::fromUtf8(shortName);
    if (!fallbackPath.isEmpty())
        return fallbackPath.section(u'/', -1);
    return QStringLiteral("pid %1").arg(pid);
}

/// The arguments without the program's name; the name alone where there are none.
QString Sampler::procArgs(const QByteArray& argumentArea) {
    QList<QByteArray> strings = argumentArea.split('\0');
    strings.removeAll(QByteArray());
    if (strings.size() > 1)
        strings.removeFirst();
    return QString::fromUtf8(strings.join(' '));
}
