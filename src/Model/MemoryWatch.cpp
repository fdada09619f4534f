#include "Model/MemoryWatch.h"

#include "Core/Formatters.h"
#include "Platform/Clock.h"
#include "Platform/MemoryKills.h"

#include <QCoroTask>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxKills = 100;
constexpr qsizetype maxNamedInLog = 3;
constexpr double shortShare = 0.1; // of memory that is left
constexpr auto recordMargin = std::chrono::seconds(2);

bool isShortOfMemory(const SystemSample& system) {
    return static_cast<double>(system.leftBytes()) < shortShare * static_cast<double>(system.memTotalBytes);
}

/// Returns whether a program runs that ends others when memory is short, and leaves its word in the record.
bool hasGuard(const QList<ProcSample>& processes) {
    return std::ranges::find(processes, u"earlyoom"_s, &ProcSample::name) != processes.end();
}

bool isNew(const Alert& alert, const QList<Alert>& before) {
    return std::ranges::find(before, alert.id, &Alert::id) == before.end();
}

/// Names the largest processes of the last tick but one.
QString largestBefore(const QList<Moment>& moments) {
    QStringList named;
    if (moments.size() < 2)
        return {};
    for (const Moment::Process& process : moments[moments.size() - 2].largest.mid(0, maxNamedInLog))
        named.append(u"%1 %2"_s.arg(process.name, Formatters::bytesForLog(process.rssBytes)));
    return named.join(u", "_s);
}

} // namespace

MemoryWatch::MemoryWatch(const Platform& platform, ActionLog& log)
    : m_platform(platform)
    , m_log(log) {
    connect(platform.pressure.get(), &Pressure::memoryStalled, this, &MemoryWatch::hear);
    connect(platform.memoryKills.get(), &MemoryKills::groupEnded, this,
            [this](const QString& group, const QString& by) {
                enter({.at = m_platform.clock->now(), .name = group, .bytes = {}, .by = by},
                      largestBefore(m_recorder.moments()));
            });
}

void MemoryWatch::hear(Pressure::Stall stall) {
    m_pressure.heard(stall, m_platform.clock->uptime());
    Q_EMIT stalled();
}

void MemoryWatch::tick(const SystemSample& system, const QList<ProcSample>& processes,
                       const QList<GroupRollup>& groups) {
    m_recorder.note(system, processes);
    m_growth.note(m_platform.clock->uptime(), system, processes, groups);
    followKills(system, processes);
    m_lastTick = system.timestamp;
}

MemoryOutlook MemoryWatch::outlook(const SystemSample& system, const QList<Session>& sessions) const {
    return {.pressure = m_pressure.severity(system.memoryPressure, m_platform.clock->uptime()),
            .forecast = m_growth.forecast(sessions),
            .kills = m_entered};
}

QList<Incident> MemoryWatch::incidents(const QList<Alert>& before, const QList<Alert>& now) const {
    QList<Incident> incidents;
    for (const Alert& alert : now) {
        const bool isKill = std::ranges::any_of(
            m_entered, [&alert](const MemoryKill& kill) { return kill.id() == alert.id; });
        if ((isKill || alert.severity == Alert::Severity::danger) && isNew(alert, before))
            incidents.append({.alertId = alert.id, .title = alert.title, .moments = m_recorder.moments()});
    }
    return incidents;
}

/// Asks for names at the tick after the one that saw a kill: what was killed may be listed once more.
void MemoryWatch::followKills(const SystemSample& system, const QList<ProcSample>& processes) {
    const bool isGuarded = isShortOfMemory(system) && hasGuard(processes);
    const bool isWorthAsking =
        m_kills.follow(m_platform.memoryKills->count(), processes, isGuarded, system.timestamp);
    if (m_isNaming || !isWorthAsking)
        return;
    if (!m_recordSince) {
        m_recordSince = m_lastTick - recordMargin;
        m_largest = largestBefore(m_recorder.moments());
        return;
    }
    m_isNaming = true;
    nameKills();
}

QCoro::Task<> MemoryWatch::nameKills() {
    const QPointer<MemoryWatch> self(this);
    auto reading = m_platform.memoryKills->since(*m_recordSince);
    const QList<RecordedKill> record = co_await reading;
    if (!self)
        co_return;
    m_isNaming = false;
    m_recordSince.reset();
    const QList<MemoryKill> kills = m_kills.take(record);
    for (const MemoryKill& kill : kills)
        enter(kill, m_largest);
}

void MemoryWatch::enter(const MemoryKill& kill, const QString& largest) {
    m_entered.prepend(kill);
    if (m_entered.size() > maxKills)
        m_entered.resize(maxKills);
    const QString who = kill.by.isEmpty() ? u"kernel"_s : kill.by;
    m_log.record(
        ActionLogEntry::Kind::kernel,
        u"[%1] %2 pid=%3 — largest before: %4"_s.arg(who, kill.name, QString::number(kill.pid), largest),
        kill.bytes.value_or(0), true);
}
