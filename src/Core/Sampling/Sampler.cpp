#include "Core/Sampling/Sampler.h"

#include "Core/Sampling/LaunchedProgram.h"
#include "Core/Sampling/ProcessName.h"
#include "Platform/Applications.h"
#include "Platform/Clock.h"
#include "Platform/Platform.h"
#include "Platform/Pressure.h"
#include "Platform/ProcessTable.h"

#include <array>

namespace {

constexpr std::size_t maxPids = 4096;
constexpr qsizetype maxGonePart = 8;       // texts are dropped after the end of one process in 8
constexpr double busyPercent = 0.5;        // below it a process is idle
constexpr quint32 passesBetweenChecks = 3; // at the texts of a running process

double secondsBetween(std::chrono::steady_clock::time_point from, std::chrono::steady_clock::time_point to) {
    return std::chrono::duration<double>(to - from).count();
}

ThermalState thermalState(int level) {
    constexpr auto states = allCases<ThermalState>();
    return level >= 0 && level < int(states.size()) ? states[level] : ThermalState::nominal;
}

/// Returns the arguments that are not empty.
QStringList argumentsOf(const QByteArray& argumentArea) {
    QStringList arguments;
    for (const QByteArray& argument : argumentArea.split('\0')) {
        if (!argument.isEmpty())
            arguments.append(QString::fromUtf8(argument));
    }
    return arguments;
}

/// Returns the arguments without the program's name, or the name alone.
QString procArgs(QStringList arguments) {
    if (arguments.size() > 1)
        arguments.removeFirst();
    return arguments.join(u' ');
}

/// Returns the load of each CPU between two readings, in percent; nothing where their number differs.
QList<double> loadsBetween(const QList<CoreTicks>& before, const QList<CoreTicks>& now) {
    QList<double> loads;
    if (before.size() != now.size())
        return loads;
    loads.reserve(now.size());
    for (qsizetype i = 0; i < now.size(); ++i) {
        const auto busy = static_cast<double>(now[i].busy - std::min(before[i].busy, now[i].busy));
        const auto idle = static_cast<double>(now[i].idle - std::min(before[i].idle, now[i].idle));
        loads.append(busy + idle > 0 ? busy / (busy + idle) * 100 : 0);
    }
    return loads;
}

quint64 busy(const CpuTicks& ticks) {
    return ticks.user + ticks.system + ticks.nice;
}

} // namespace

Sampler::Sampler(const Platform& platform, Classifier classifier)
    : m_host(platform.host)
    , m_table(platform.processes)
    , m_pressure(platform.pressure)
    , m_clock(platform.clock)
    , m_applications(platform.applications)
    , m_classify(std::move(classifier)) {}

SystemSample Sampler::sample() {
    SystemSample sample;
    sample.id = QUuid::createUuid();
    sample.timestamp = m_clock->now();
    sample.cpuPercent = cpuLoad();
    const QList<CoreTicks> cores = m_host->coreTicks();
    m_coreLoads = loadsBetween(std::exchange(m_prevCores, cores), cores);
    const MemoryUse memory = m_host->memoryUse();
    sample.memUsedBytes = memory.activeBytes + memory.wiredBytes + memory.compressedBytes;
    sample.memWiredBytes = memory.wiredBytes;
    sample.memCompressedBytes = memory.compressedBytes;
    sample.memProgramBytes = memory.programBytes;
    sample.memCacheBytes = memory.cacheBytes;
    sample.memTotalBytes = memory.totalBytes;
    sample.swapUsedBytes = memory.swapUsedBytes;
    sample.swapTotalBytes = memory.swapTotalBytes;
    const VolumeSize root = m_host->rootVolume().value_or(VolumeSize());
    sample.diskFreeBytes = root.freeBytes;
    sample.diskTotalBytes = root.totalBytes;
    sample.thermalState = thermalState(m_host->thermalLevel());
    sample.memoryPressure = m_pressure->memory();
    sample.diskPressure = m_pressure->disk();
    return sample;
}

double Sampler::cpuLoad() {
    const auto ticks = m_host->cpuTicks();
    if (!ticks)
        return 0;
    const auto previous = std::exchange(m_prevHostCPU, ticks);
    if (!previous)
        return 0;
    const quint64 used = busy(*ticks) - busy(*previous);
    const quint64 total = used + ticks->idle - previous->idle;
    return total > 0 ? static_cast<double>(used) / static_cast<double>(total) * 100 : 0;
}

QList<ProcSample> Sampler::sampleProcesses() {
    std::array<qint32, maxPids> pids{};
    const int listed = m_table->listAllPids(pids);
    if (listed < 1)
        return {};
    const Instant now = m_clock->now();
    const Uptime uptime = m_clock->uptime();
    ++m_pass;

    QList<ProcSample> result;
    result.reserve(listed);
    for (int i = 0; i < listed; ++i) {
        const qint32 pid = pids[static_cast<std::size_t>(i)];
        if (pid < 1)
            continue;
        auto entry = m_known.find(pid);
        if (entry != m_known.end())
            entry->prev.pass = m_pass;
        const auto task = m_table->taskInfo(pid);
        if (!task) {
            if (entry != m_known.end())
                m_left.insert(pid); // a zombie, whose children have another parent
            continue;
        }
        if (entry == m_known.end()) // its texts are newer than its clock
            entry = m_known.insert(pid, {.prev = {}, .staticCache = lookUp(pid, now), .firstPass = m_pass});
        else
            entry->mayHaveChanged |= task->cpuTimeNs != entry->prev.totalNs;
        if (isDue(pid, *entry))
            refreshTexts(pid, *entry, now);
        const double percent = cpuPercent(entry->prev, task->cpuTimeNs, uptime);
        const StaticMeta& meta = entry->staticCache;
        result.append({.pid = pid,
                       .parentPid = meta.ppid,
                       .uid = meta.uid,
                       .name = meta.name,
                       .executablePath = meta.path,
                       .arguments = meta.args,
                       .cpuPercent = percent,
                       .startTime = meta.startTime,
                       .idleSeconds = secondsBetween(entry->prev.lastNonZero, uptime),
                       .group = meta.group,
                       .program = meta.program});
        result.last().setFigures(*task);
    }
    evictUnseen();
    refreshParents(result);
    return result;
}

/// Returns whether the texts of a process may have changed: it has run, and it is young or has its turn. A
/// young process may have been listed between its fork and its exec.
bool Sampler::isDue(qint32 pid, const Known& process) const {
    const bool isYoung = m_pass - process.firstPass <= passesBetweenChecks;
    const bool hasItsTurn = (static_cast<quint32>(pid) + m_pass) % passesBetweenChecks == 0;
    return process.mayHaveChanged && process.firstPass != m_pass && (isYoung || hasItsTurn);
}

void Sampler::refreshTexts(qint32 pid, Known& process, Instant now) {
    process.mayHaveChanged = false;
    const auto hash = m_table->textHash(pid);
    if (!hash || *hash == process.staticCache.textHash)
        return;
    StaticMeta meta = lookUp(pid, now);
    if (meta.startTicks == process.staticCache.startTicks) {
        meta.startTime = process.staticCache.startTime;
    } else {
        m_left.insert(pid); // the PID was reused
        process.prev = {.pass = process.prev.pass};
        process.firstPass = m_pass;
    }
    process.staticCache = meta;
}

/// Finds the new parents of the children of ended processes.
void Sampler::refreshParents(QList<ProcSample>& processes) {
    if (m_left.isEmpty())
        return;
    for (ProcSample& process : processes) {
        if (!m_left.contains(process.parentPid))
            continue;
        const auto info = m_table->kernelInfo(process.pid);
        const auto entry = m_known.find(process.pid);
        if (!info || entry == m_known.end() || info->startTicks != entry->staticCache.startTicks)
            continue;
        entry->staticCache.ppid = info->parentPid;
        process.parentPid = info->parentPid;
    }
    m_left.clear();
}

std::optional<ProcSample> Sampler::lookAgain(const ProcSample& listed) const {
    const auto entry = m_known.constFind(listed.pid);
    const ProcessOrigin origin = m_table->origin(listed.pid);
    if (entry == m_known.cend() || listed.startTime != entry->staticCache.startTime || !origin.kernelInfo ||
        origin.kernelInfo->startTicks != entry->staticCache.startTicks)
        return std::nullopt;
    const StaticMeta meta = metaOf(listed.pid, origin, listed.startTime);
    ProcSample again = listed;
    again.name = meta.name;
    again.executablePath = meta.path;
    again.arguments = meta.args;
    again.program = meta.program;
    again.uid = meta.uid;
    again.parentPid = meta.ppid;
    return again;
}

bool Sampler::isReplaced(qint32 pid) const {
    const auto listed = m_known.constFind(pid);
    const auto running = m_table->kernelInfo(pid);
    return listed != m_known.cend() && running && running->startTicks != listed->staticCache.startTicks;
}

void Sampler::setIdle(const ProcessIdentity& process, double seconds) {
    const auto entry = m_known.find(process.pid);
    const auto inSeconds = [](Instant instant) { return std::chrono::floor<std::chrono::seconds>(instant); };
    if (entry == m_known.end() || inSeconds(entry->staticCache.startTime) != inSeconds(process.startTime))
        return;
    entry->prev.lastNonZero = entry->prev.sampledAt - std::chrono::duration_cast<Uptime::duration>(
                                                          std::chrono::duration<double>(seconds));
}

/// Returns the share of a core since the last reading, and remembers this one.
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
    cpu.pass = m_pass;
    return percent;
}

/// Returns the stored copy of a text, so that equal processes share one.
QString Sampler::interned(const QString& text) {
    return *m_texts.insert(text);
}

/// Forgets the processes that the pass did not list. Their texts are dropped in batches, because that walks
/// over all texts. A build starts thousands of compilers with long arguments.
void Sampler::evictUnseen() {
    m_gone += m_known.removeIf([this](const auto& entry) {
        if (entry->prev.pass == m_pass)
            return false;
        m_left.insert(entry.key());
        return true;
    });
    if (m_gone * maxGonePart <= m_known.size())
        return;
    m_texts.removeIf([](const QString& text) { return text.isDetached(); }); // no process has it
    m_gone = 0;
}

Sampler::StaticMeta Sampler::lookUp(qint32 pid, Instant now) {
    StaticMeta meta = metaOf(pid, m_table->origin(pid), now);
    for (QString* text : {&meta.path, &meta.name, &meta.args, &meta.program})
        *text = interned(*text);
    meta.group = groupOf(meta);
    return meta;
}

ProcGroup Sampler::groupOf(const StaticMeta& meta) const {
    return m_classify ? m_classify({.name = meta.name,
                                    .executablePath = meta.path,
                                    .arguments = meta.args,
                                    .program = meta.program})
                      : ProcGroup::other;
}

void Sampler::classifyAnew() {
    for (Known& process : m_known)
        process.staticCache.group = groupOf(process.staticCache);
}

/// Reads the texts of a process. `now` replaces an unknown start.
Sampler::StaticMeta Sampler::metaOf(qint32 pid, const ProcessOrigin& origin, Instant now) const {
    const QStringList arguments = argumentsOf(origin.argumentArea);
    StaticMeta meta;
    meta.path = QString::fromUtf8(origin.executablePath);
    const auto launched = LaunchedProgram::read(meta.path, arguments);
    meta.program = launched.program;
    meta.name = procName(pid, origin, arguments, launched.isScript ? launched.program : QString());
    meta.args = procArgs(arguments);
    meta.textHash = origin.textHash;
    meta.startTime = now;
    if (const auto& info = origin.kernelInfo) {
        meta.uid = info->uid;
        meta.ppid = info->parentPid;
        meta.startTime = info->start;
        meta.startTicks = info->startTicks;
    }
    return meta;
}

QString Sampler::procName(qint32 pid, const ProcessOrigin& origin, const QStringList& arguments,
                          const QString& script) const {
    const QString name = ProcessName::of({.shortName = origin.shortName,
                                          .executablePath = QString::fromUtf8(origin.executablePath),
                                          .arguments = arguments,
                                          .script = script},
                                         [this](const QString& executable) {
                                             const auto application = m_applications->ofProgram(executable);
                                             return application ? application->name : QString();
                                         });
    return name.isEmpty() ? QStringLiteral("pid %1").arg(pid) : name;
}
