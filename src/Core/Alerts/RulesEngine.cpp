#include "Core/Alerts/RulesEngine.h"

#include "Core/Cleanup/CleanupOverlap.h"
#include "Core/Formatters.h"
#include "Core/Relief/ProtectedProcesses.h"
#include "Core/Sampling/ProcessFilter.h"
#include "Core/Translations.h"
#include "Platform/Identity.h"
#include "Platform/Words.h"
#include "Preferences.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Severity = Alert::Severity;

constexpr double GiB = 1073741824.0;
constexpr double heavySwapGB = 4.0;
constexpr qsizetype maxNamedCaches = 3;
constexpr qsizetype maxShownKills = 3;

QString oneDecimal(double value) {
    return Formatters::fixed(value, 1);
}

/// Returns a threshold in bytes, or an empty optional when no byte count expresses it.
std::optional<quint64> gigabytes(double value) {
    if (!std::isfinite(value) || value < 0 || value >= std::ldexp(1.0, 34))
        return std::nullopt;
    return static_cast<quint64>(value * GiB);
}

std::optional<Alert> memoryAlert(const SystemSample& system, const Preferences& prefs) {
    const double threshold = prefs.alertRAMLowFreeGB();
    if (!prefs.alertRAMLowEnabled() || system.memTotalBytes == 0)
        return std::nullopt;
    const double free =
        (static_cast<double>(system.memTotalBytes) - static_cast<double>(system.memUsedBytes)) / GiB;
    if (free < threshold) {
        return Alert{
            .id = u"ram_low"_s,
            .severity = Severity::danger,
            .title = QCoreApplication::translate("RulesEngine", "Free RAM low"),
            .detail = QCoreApplication::translate(
                          "RulesEngine", "Only %1 GB free — consider quitting top hogs or cleaning caches.")
                          .arg(oneDecimal(free)),
            .actionTarget = u"ram"_s};
    }
    if (free < 2 * threshold) {
        return Alert{.id = u"ram_warn"_s,
                     .severity = Severity::warn,
                     .title = QCoreApplication::translate("RulesEngine", "RAM getting tight"),
                     .detail =
                         QCoreApplication::translate("RulesEngine", "%1 GB free.").arg(oneDecimal(free)),
                     .actionTarget = u"ram"_s};
    }
    return std::nullopt;
}

/// Returns the alert on programs that wait for memory.
std::optional<Alert> pressureAlert(const SystemSample& system, const MemoryOutlook& outlook,
                                   const Preferences& prefs) {
    if (!prefs.alertPressureEnabled() || !outlook.pressure)
        return std::nullopt;
    const double waited = system.memoryPressure.value_or(PressureLevel()).some;
    return Alert{.id = u"pressure"_s,
                 .severity = *outlook.pressure,
                 .title = QCoreApplication::translate("RulesEngine", "Programs wait for memory"),
                 .detail = QCoreApplication::translate(
                               "RulesEngine", "%1 of the last ten seconds. Free RAM, or quit what grows.")
                               .arg(Formatters::percent(waited)),
                 .actionTarget = u"ram"_s};
}

/// Returns whole minutes, in steps of five from ten on, so that the text stays the same for a while.
int shownMinutes(double seconds) {
    const double minutes = seconds / 60;
    return minutes < 10 ? std::max(1, int(std::lround(minutes))) : 5 * int(std::lround(minutes / 5));
}

QString forecastTitle(const MemoryForecast& forecast) {
    const int minutes = shownMinutes(forecast.secondsLeft);
    if (!forecast.grower)
        return QCoreApplication::translate("RulesEngine", "Memory full in about %1 min").arg(minutes);
    const QString pace =
        Formatters::bytes(static_cast<quint64>(std::max(0.0, forecast.grower->bytesPerSecond) * 60));
    return (forecast.grower->kind == Grower::Kind::group
                ? QCoreApplication::translate("RulesEngine", "Memory full in about %1 min — %2 grow %3/min")
                : QCoreApplication::translate("RulesEngine", "Memory full in about %1 min — %2 grows %3/min"))
        .arg(QString::number(minutes), forecast.grower->title, pace);
}

bool isProtected(const ProcSample& process, const QList<ProcSample>& processes, const Identity& identity) {
    return ProtectedProcesses(processes, identity.processId(), identity.displayServers())
        .contains(process.pid);
}

/// Returns the alert on memory that will be full. It acts on whoever grows, if that is the user's to end.
std::optional<Alert> forecastAlert(const QList<ProcSample>& processes, const MemoryOutlook& outlook,
                                   const Preferences& prefs, const ProcessFilter& maySignal,
                                   const Identity& identity) {
    if (!prefs.alertForecastEnabled() || !outlook.forecast)
        return std::nullopt;
    Alert alert{.id = u"memory_full"_s,
                .severity = Severity::danger,
                .title = forecastTitle(*outlook.forecast),
                .detail = QCoreApplication::translate("RulesEngine", "%1 are left, with swap.")
                              .arg(Formatters::bytes(outlook.forecast->leftBytes))};
    const auto& grower = outlook.forecast->grower;
    if (!grower || grower->kind == Grower::Kind::group)
        return alert;
    const auto process = std::ranges::find(processes, grower->process, &ProcSample::identity);
    if (process == processes.end() || !maySignal.accepts(*process))
        return alert;
    if (grower->kind == Grower::Kind::process && isProtected(*process, processes, identity))
        return alert; // one press ends it
    alert.actionPid = process->pid;
    alert.actionTarget = grower->kind == Grower::Kind::session ? u"session"_s : u"process"_s;
    return alert;
}

QString killTitle(const MemoryKill& kill) {
    const QString by = kill.by.isEmpty() ? QCoreApplication::translate("RulesEngine", "The kernel") : kill.by;
    const QString at = Formatters::timeOfDay(secondsOf(kill.at), QLocale::ShortFormat);
    if (kill.pid == 0)
        return QCoreApplication::translate("RulesEngine", "%1 ended %2 at %3 because memory ran out")
            .arg(by, kill.name, at);
    const QString size = kill.bytes ? u", "_s + Formatters::bytes(*kill.bytes) : QString();
    return QCoreApplication::translate("RulesEngine", "%1 ended %2 (PID %3%4) at %5 because memory ran out")
        .arg(by, kill.name, QString::number(kill.pid), size, at);
}

/// Returns one alert for each of the newest kills.
QList<Alert> killAlerts(const MemoryOutlook& outlook, const Preferences& prefs) {
    QList<Alert> alerts;
    if (!prefs.alertMemoryKillEnabled())
        return alerts;
    for (const MemoryKill& kill : outlook.kills.mid(0, maxShownKills)) {
        alerts.append(
            {.id = kill.id(),
             .severity = Severity::info,
             .title = killTitle(kill),
             .detail = kill.isGuess
                           ? QCoreApplication::translate(
                                 "RulesEngine",
                                 "Judged by what vanished then: the system's record is not readable.")
                           : QString()});
    }
    return alerts;
}

/// Returns the first of the busiest processes that count, null when there is none.
template <typename Counts> const ProcSample* busiest(const QList<ProcSample>& processes, Counts counts) {
    const ProcSample* top = nullptr;
    for (const ProcSample& process : processes) {
        if (counts(process) && (!top || process.cpuPercent > top->cpuPercent))
            top = &process;
    }
    return top;
}

std::optional<Alert> cpuAlert(const SystemSample& system, const QList<ProcSample>& processes,
                              const Preferences& prefs, const Identity& identity) {
    if (!prefs.alertCPUHotEnabled() || !(system.cpuPercent > prefs.alertCPUHotPercent()))
        return std::nullopt;
    const ProcessFilter maySignal(identity);
    const ProcSample* target =
        busiest(processes, [&](const ProcSample& process) { return maySignal.accepts(process); });
    const ProcSample* named = target ? target : busiest(processes, [&](const ProcSample& process) {
        return process.pid != identity.processId();
    });
    const ProtectedProcesses kept(processes, identity.processId(), identity.displayServers());
    return Alert{.id = u"cpu_hot"_s,
                 .severity = Severity::warn,
                 .title = QCoreApplication::translate("RulesEngine", "CPU saturated"),
                 .detail = QCoreApplication::translate("RulesEngine", "%1 total — top: %2")
                               .arg(Formatters::percent(system.cpuPercent), named ? named->name : u"—"_s),
                 .actionPid =
                     target && !kept.contains(target->pid) ? std::optional(target->pid) : std::nullopt};
}

Alert thermalAlert(ThermalState state) {
    return {.id = u"thermal"_s,
            .severity = Severity::danger,
            .title = QCoreApplication::translate("RulesEngine", "%1 is running hot (%2)")
                         .arg(Words::native().computer, thermalLabel(state)),
            .detail =
                QCoreApplication::translate(
                    "RulesEngine", "%1 is throttling — reduce parallel agentic work or quit Docker/ollama.")
                    .arg(Words::native().system)};
}

std::optional<Alert> swapAlert(const SystemSample& system) {
    const double swap = static_cast<double>(system.swapUsedBytes) / GiB;
    if (!(swap > heavySwapGB))
        return std::nullopt;
    return Alert{.id = u"swap_high"_s,
                 .severity = Severity::warn,
                 .title = QCoreApplication::translate("RulesEngine", "Heavy swap usage"),
                 .detail =
                     QCoreApplication::translate("RulesEngine", "%1 GB swapped — system will feel sluggish.")
                         .arg(oneDecimal(swap))};
}

QString idleAgentTitle(const QString& name, const QString& project) {
    return project.isEmpty()
               ? QCoreApplication::translate("RulesEngine", "Idle agent — %1").arg(name)
               : QCoreApplication::translate("RulesEngine", "Idle agent — %1 in %2").arg(name, project);
}

Alert idleAgentAlert(const ProcSample& process, const QString& project, bool maySignal) {
    return {.id = u"idle_agent_%1"_s.arg(process.pid),
            .severity = Severity::warn,
            .title = idleAgentTitle(process.name, project),
            .detail =
                (maySignal ? QCoreApplication::translate("RulesEngine", "Idle %1 min, %2 RAM. Quit?")
                           : QCoreApplication::translate("RulesEngine", "Idle %1 min, %2 RAM."))
                    .arg(Formatters::fixed(process.idleSeconds / 60, 0), Formatters::bytes(process.rssBytes)),
            .actionPid = maySignal ? std::optional(process.pid) : std::nullopt};
}

QList<Alert> idleAgentAlerts(const QList<ProcSample>& processes, const Preferences& prefs,
                             const ProcessFilter& maySignal, const Identity& identity,
                             const RulesEngine::ProjectOf& projectOf) {
    const auto minBytes = ProcessFilter::bytesFromMiB(prefs.alertIdleAgentMinRSSMB());
    if (!prefs.alertIdleAgentEnabled() || !minBytes)
        return {};
    const double minIdleSeconds = prefs.alertIdleAgentMinIdleMin() * 60;
    QList<Alert> alerts;
    for (const ProcSample& process : processes) {
        const bool qualifies = process.group == ProcGroup::agents && process.idleSeconds > minIdleSeconds &&
                               process.rssBytes > *minBytes;
        if (qualifies)
            alerts.append(
                idleAgentAlert(process, projectOf ? projectOf(process) : QString(),
                               maySignal.accepts(process) && !isProtected(process, processes, identity)));
    }
    return alerts;
}

double percentOf(quint64 bytes, const SystemSample& system) {
    return static_cast<double>(bytes) / static_cast<double>(system.memTotalBytes) * 100;
}

/// Judges the memory that is known: a resident size counts shared pages for each process.
std::optional<Alert> browserAlert(const SystemSample& system, const QList<GroupRollup>& groups,
                                  const Preferences& prefs) {
    const auto browsers = std::ranges::find(groups, ProcGroup::browsers, &GroupRollup::group);
    if (!prefs.alertBrowserHogEnabled() || browsers == groups.end() || system.memTotalBytes == 0)
        return std::nullopt;
    const SummedMemory& memory = browsers->memory;
    const double limit = prefs.alertBrowserHogPercentTotal();
    if (!(limit <= percentOf(memory.bytes - memory.standInBytes, system)))
        return std::nullopt;
    return Alert{.id = u"browser_hog"_s,
                 .severity = Severity::info,
                 .title = QCoreApplication::translate("RulesEngine", "Browsers using %1").arg(memory.text()),
                 .detail = QCoreApplication::translate(
                               "RulesEngine",
                               "That's %1 of total RAM. Closing idle tabs frees the most memory fastest.")
                               .arg(Formatters::percent(percentOf(memory.bytes, system))),
                 .actionTarget = u"browsers"_s};
}

std::optional<Alert> cachesAlert(const QList<CacheTarget>& caches, const Preferences& prefs) {
    const auto limit = gigabytes(prefs.alertCachesBigGB());
    if (!prefs.alertCachesBigEnabled() || caches.isEmpty() || !limit)
        return std::nullopt;
    const quint64 total = CleanupOverlap::totalBytes(caches);
    QStringList big;
    for (const CacheTarget& target : caches) {
        if (target.sizeBytes > *limit / static_cast<quint64>(caches.size()))
            big.append(u"%1 (%2)"_s.arg(Translations::of(target.name), Formatters::bytes(target.sizeBytes)));
    }
    if (total <= *limit)
        return std::nullopt;
    return Alert{.id = u"caches_big"_s,
                 .severity = Severity::info,
                 .title = QCoreApplication::translate("RulesEngine", "Caches reclaimable: %1")
                              .arg(Formatters::bytes(total)),
                 .detail = Formatters::list(big.mid(0, maxNamedCaches)),
                 .actionTarget = u"caches"_s};
}

/// Judges the memory that is known, like the alert on browsers.
QList<Alert> sessionAlerts(const QList<Session>& sessions, const Preferences& prefs) {
    const auto limit = gigabytes(prefs.alertSessionBigGB());
    if (!prefs.alertSessionBigEnabled() || !limit)
        return {};
    QList<Alert> alerts;
    for (const Session& session : sessions) {
        if (session.memory.bytes - session.memory.standInBytes <= *limit)
            continue;
        alerts.append({.id = u"session_big_%1"_s.arg(session.host.pid),
                       .severity = Severity::warn,
                       .title = QCoreApplication::translate("RulesEngine", "%1 holds %2")
                                    .arg(session.title(), session.memory.text()),
                       .detail = QCoreApplication::translate(
                           "RulesEngine", "With %n process(es) that it started. End it in Sessions.", nullptr,
                           static_cast<int>(session.processes.size() - 1)),
                       .actionTarget = u"sessions"_s});
    }
    return alerts;
}

} // namespace

bool RulesEngine::needsTrueMemory(const SystemSample& system, const QList<GroupRollup>& groups,
                                  const Preferences& prefs) {
    const auto browsers = std::ranges::find(groups, ProcGroup::browsers, &GroupRollup::group);
    if (!prefs.alertBrowserHogEnabled() || browsers == groups.end() || system.memTotalBytes == 0)
        return false;
    return prefs.alertBrowserHogPercentTotal() <=
           percentOf(browsers->rssBytes + system.swapUsedBytes, system);
}

QList<Alert> RulesEngine::evaluate(const SystemSample& system, const QList<ProcSample>& processes,
                                   const QList<GroupRollup>& groups, const QList<CacheTarget>& caches,
                                   const Preferences& prefs, const QList<Session>& sessions,
                                   const MemoryOutlook& outlook) {
    QList<Alert> alerts;
    const auto add = [&alerts](const std::optional<Alert>& alert) {
        if (alert)
            alerts.append(*alert);
    };
    const ProcessFilter maySignal(m_identity);
    add(memoryAlert(system, prefs));
    add(forecastAlert(processes, outlook, prefs, maySignal, m_identity));
    add(pressureAlert(system, outlook, prefs));
    add(cpuAlert(system, processes, prefs, m_identity));
    const bool hot =
        system.thermalState == ThermalState::serious || system.thermalState == ThermalState::critical;
    m_thermalHotStreak = hot ? m_thermalHotStreak + 1 : 0;
    if (prefs.alertThermalEnabled() && m_thermalHotStreak >= thermalHotStreakThreshold)
        add(thermalAlert(system.thermalState));
    add(swapAlert(system));
    alerts.append(idleAgentAlerts(processes, prefs, maySignal, m_identity, m_projectOf));
    add(browserAlert(system, groups, prefs));
    add(cachesAlert(caches, prefs));
    alerts.append(sessionAlerts(sessions, prefs));
    alerts.append(killAlerts(outlook, prefs));
    return alerts;
}
