#include "Core/Pressure/GrowthWatch.h"

#include "Core/Memory/MemoryFigures.h"
#include "Core/Translations.h"

#include <QSet>

#include <algorithm>
#include <functional>

namespace {

constexpr double noteSeconds = 9.5;  // ten, with a tick that comes early
constexpr double pauseSeconds = 90;  // without a note: the figures before say nothing any more
constexpr qsizetype maxPoints = 91;  // 15 minutes
constexpr qsizetype maxTracked = 60; // processes
constexpr quint64 trackedBytes = 50 << 20;
constexpr double warnSeconds = 30 * 60;
constexpr double calmSeconds = 40 * 60;
constexpr double suspectSeconds = 2 * 60 * 60;
constexpr int maxMisses = 3;
constexpr double leastShareOfFall = 0.3; // that a grower explains

void keepLast(QList<double>& values) {
    if (values.size() > maxPoints)
        values.remove(0, values.size() - maxPoints);
}

/// Returns a process's memory with its shared pages divided, empty while only the resident size is known.
std::optional<quint64> realBytes(const ProcSample& process) {
    if (!process.memory || !process.memory->isProportional())
        return std::nullopt;
    return SummedMemory::of({process}).bytes;
}

Trend::Figures figures(const QList<double>& values) {
    return {values.constData(), static_cast<std::size_t>(values.size())};
}

} // namespace

void GrowthWatch::note(Uptime now, const SystemSample& system, const QList<ProcSample>& processes,
                       const QList<GroupRollup>& groups) {
    const double seconds = std::chrono::duration<double>(now.time_since_epoch()).count();
    if (system.memTotalBytes == 0 || (!m_seconds.isEmpty() && seconds - m_seconds.last() < noteSeconds))
        return;
    restartAfterPause(seconds);
    ++m_notes;
    m_seconds.append(seconds);
    m_left.append(static_cast<double>(system.leftBytes()));
    keepLast(m_seconds);
    keepLast(m_left);
    noteProcesses(processes, system.timestamp);
    noteGroups(groups);
    judge();
}

void GrowthWatch::restartAfterPause(double now) {
    if (!m_seconds.isEmpty() && now - m_seconds.last() > pauseSeconds)
        *this = GrowthWatch();
}

void GrowthWatch::noteProcesses(const QList<ProcSample>& processes, Instant now) {
    const Instant begin = now - std::chrono::duration_cast<Instant::duration>(
                                    std::chrono::duration<double>(m_seconds.last() - m_seconds.first()));
    for (const ProcSample& process : processes.first(std::min(processes.size(), maxTracked))) {
        if (process.rssBytes < trackedBytes)
            break;
        Track& track = m_processes[process.pid];
        if (track.startTime != process.startTime)
            track = {.startTime = process.startTime, .isNew = process.startTime > begin};
        track.name = process.name;
        append(track, process.rssBytes, realBytes(process));
    }
    m_processes.removeIf([this](const auto& track) { return track->noted != m_notes; });
}

void GrowthWatch::noteGroups(const QList<GroupRollup>& groups) {
    m_groups.resize(groups.size());
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const SummedMemory& memory = groups[i].memory;
        m_groups[i].name = Translations::of(groups[i].group);
        append(m_groups[i], groups[i].rssBytes,
               memory.standInBytes == 0 ? std::optional(memory.bytes) : std::nullopt);
    }
}

void GrowthWatch::append(Track& track, quint64 resident, std::optional<quint64> real) {
    track.noted = m_notes;
    track.resident.append(static_cast<double>(resident));
    keepLast(track.resident);
    if (real)
        track.real.append(static_cast<double>(*real));
    else
        track.real.clear();
    keepLast(track.real);
}

void GrowthWatch::judge() {
    const auto fall = Trend::steadyFall(figures(m_seconds), figures(m_left));
    const double limit = m_isWarning ? calmSeconds : warnSeconds;
    const bool isFalling = fall && fall->secondsLeft() <= suspectSeconds;
    m_misses = isFalling ? 0 : m_misses + 1;
    if (isFalling)
        m_fall = fall;
    else if (m_misses >= maxMisses)
        m_fall.reset();
    m_isWarning = m_fall && m_fall->secondsLeft() <= limit;
}

std::optional<MemoryForecast> GrowthWatch::forecast(const QList<Session>& sessions) const {
    if (!m_isWarning)
        return std::nullopt;
    return MemoryForecast{.secondsLeft = m_fall->secondsLeft(),
                          .leftBytes = static_cast<quint64>(m_left.last()),
                          .grower = growerAmong(sessions)};
}

QList<qint32> GrowthWatch::suspects() const {
    return m_fall ? m_processes.keys() : QList<qint32>();
}

/// Returns the memory at the times of the fall's window.
QList<double> GrowthWatch::duringFall(const Track& track) const {
    const auto points = static_cast<qsizetype>(m_fall->points);
    QList<double> values = track.real.size() >= points ? track.real : track.resident;
    const double before = track.isNew || values.isEmpty() ? 0 : values.first();
    while (values.size() < points)
        values.prepend(before); // it was not there yet, or small
    return values.last(points);
}

/// Returns bytes a second.
double GrowthWatch::growthOf(const QList<double>& duringFall) const {
    return Trend::medianSlope(figures(m_seconds).last(m_fall->points), figures(duringFall));
}

std::optional<Grower> GrowthWatch::growerAmong(const QList<Session>& sessions) const {
    std::optional<Grower> fastest;
    const auto consider = [&fastest](const std::optional<Grower>& grower) {
        if (grower && (!fastest || grower->bytesPerSecond > fastest->bytesPerSecond))
            fastest = grower;
    };
    QSet<qint32> ofSessions;
    for (const Session& session : sessions) {
        QList<double> sum(static_cast<qsizetype>(m_fall->points));
        for (const SessionProcess& each : session.processes) {
            const auto track = m_processes.constFind(each.process.pid);
            if (track == m_processes.cend() || track->startTime != each.process.startTime)
                continue;
            ofSessions.insert(each.process.pid);
            std::ranges::transform(sum, duringFall(*track), sum.begin(), std::plus());
        }
        consider(Grower{.kind = Grower::Kind::session,
                        .process = session.host,
                        .title = session.title(),
                        .bytesPerSecond = growthOf(sum)});
    }
    consider(fastestProcess(ofSessions));
    const double enough = leastShareOfFall * m_fall->perSecond;
    if (!fastest || fastest->bytesPerSecond < enough)
        fastest = fastestGroup();
    return fastest && fastest->bytesPerSecond >= enough ? fastest : std::nullopt;
}

std::optional<Grower> GrowthWatch::fastestProcess(const QSet<qint32>& without) const {
    std::optional<Grower> fastest;
    for (auto track = m_processes.cbegin(); track != m_processes.cend(); ++track) {
        if (without.contains(track.key()))
            continue;
        const double growth = growthOf(duringFall(*track));
        if (!fastest || growth > fastest->bytesPerSecond)
            fastest = Grower{.kind = Grower::Kind::process,
                             .process = {.pid = track.key(), .startTime = track->startTime},
                             .title = track->name,
                             .bytesPerSecond = growth};
    }
    return fastest;
}

std::optional<Grower> GrowthWatch::fastestGroup() const {
    std::optional<Grower> fastest;
    for (const Track& group : m_groups) {
        const double growth = growthOf(duringFall(group));
        if (!fastest || growth > fastest->bytesPerSecond)
            fastest = Grower{
                .kind = Grower::Kind::group, .process = {}, .title = group.name, .bytesPerSecond = growth};
    }
    return fastest;
}
