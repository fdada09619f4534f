#include "AppModel.h"

#include "Core/Observable.h"
#include "Core/Sampling/ProgramPath.h"
#include "Platform/Clock.h"
#include "Platform/Identity.h"
#include "Platform/PowerMode.h"
#include "Preferences.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace {

/// Bounds within which no stored interval spins the program or overflows the timer.
constexpr double minIntervalSeconds = 0.1;
constexpr double maxIntervalSeconds = 86400;
constexpr double intervalTolerance = 0.01;
constexpr qsizetype maxIncidents = 20;

double effectiveInterval(double stored) {
    if (!std::isfinite(stored))
        return minIntervalSeconds;
    return std::clamp(stored, minIntervalSeconds, maxIntervalSeconds);
}

} // namespace

AppModel& AppModel::shared() {
    static AppModel instance(Platform::native(), Preferences::shared());
    return instance;
}

AppModel::AppModel(Platform platform, Preferences& preferences, QObject* parent)
    : Observable(parent)
    , m_platform(std::move(platform))
    , m_preferences(preferences)
    , m_sampler(m_platform, [this](const ProcSample& process) { return m_grouper.groupOf(process); })
    , m_ledger(m_platform.processMemory, m_platform.clock)
    , m_facts(m_platform)
    , m_rules(*m_platform.identity, [this](const ProcSample& process) { return projectOf(process); })
    , m_servers(m_platform.processes, m_platform.clock)
    , m_sessions(m_platform)
    , m_actionLog(m_platform.clock)
    , m_cleanup(m_platform, m_actionLog, m_preferences)
    , m_projectLeftovers(m_platform, m_preferences, m_actionLog)
    , m_actions(m_platform, m_state, m_sampler, m_servers, m_actionLog)
    , m_memoryWatch(m_platform, m_actionLog)
    , m_optimizer(m_actions, m_actionLog) {
    connect(&m_memoryWatch, &MemoryWatch::stalled, this, &AppModel::tickEarly);
    connect(&m_actionLog, &Observable::objectWillChange, this, &Observable::objectWillChange);
    connect(&m_cleanup, &Observable::objectWillChange, this, &Observable::objectWillChange);
    connect(&m_timer, &QTimer::timeout, this, &AppModel::tick);
    m_grouper.setChoices(m_preferences.programGroups());
}

void AppModel::start() {
    bindTimer(m_preferences.pollIntervalSeconds());
    disconnect(m_pollIntervalConnection);
    m_pollIntervalConnection = observe(&m_preferences, this, [this] { followPollInterval(); });
    tick();
}

double AppModel::timerInterval() const {
    return m_timer.isActive() ? std::chrono::duration<double>(m_timer.intervalAsDuration()).count() : -1;
}

void AppModel::bindTimer(double intervalSeconds) {
    m_timer.start(static_cast<int>(std::lround(effectiveInterval(intervalSeconds) * 1000)));
}

void AppModel::followPollInterval() {
    const double interval = m_preferences.pollIntervalSeconds();
    if (std::abs(timerInterval() - effectiveInterval(interval)) > intervalTolerance)
        bindTimer(interval);
}

void AppModel::sampleMachine() {
    const SystemSample sample = m_sampler.sample();
    publish(m_state.systemSample, sample);
    appendHistory(sample);
}

void AppModel::tick() {
    m_lastTick = m_platform.clock->uptime();
    sampleMachine();
    if (isPaused())
        return appendGroups({});

    const SystemSample sample = m_state.systemSample;
    QList<ProcSample> processes = m_sampler.sampleProcesses();
    m_actions.pausedSessions().wake(processes);
    const bool isSwapInUse = sample.swapUsedBytes > 0 || sample.memTotalBytes == 0;
    m_ledger.tick(processes, isSwapInUse);
    const QList<GroupRollup> rollups = GroupRollup::build(processes);
    std::ranges::stable_sort(processes, std::ranges::greater(), &ProcSample::rssBytes);
    publish(m_state.processes, std::move(processes));
    publish(m_state.groups, rollups);
    appendGroups(rollups);
    MCPInspector::Report mcpReport{.configured = m_mcpConfiguration.readConfigured(),
                                   .live = m_servers.detectLive(m_state.processes),
                                   .isUnknown = m_mcpConfiguration.isUnknown()};
    m_memoryWatch.tick(sample, m_state.processes, rollups);
    followSessions(mcpReport.live);
    publishAlerts();
    if (RulesEngine::needsTrueMemory(sample, rollups, m_preferences))
        m_ledger.wantOnShow(pidsOf(ProcGroup::browsers));
    m_ledger.wantOnShow(m_memoryWatch.suspects());
    publish(m_state.mcpReport, std::move(mcpReport));
}

/// A stall is heard between two ticks, and what is on show has to be of that moment. A machine that is short
/// of memory is not sampled more than twice a second for that.
void AppModel::tickEarly() {
    constexpr auto leastInterval = std::chrono::milliseconds(500);
    if (!m_timer.isActive() || m_platform.clock->uptime() - m_lastTick < leastInterval)
        return;
    m_timer.start(); // the next tick is a whole interval away
    tick();
}

ProtectedProcesses AppModel::protectedProcesses() const {
    return {m_state.processes, m_platform.identity->processId(), m_platform.identity->displayServers()};
}

void AppModel::publishAlerts() {
    const QList<Alert> before = m_state.alerts;
    const MemoryOutlook outlook = m_memoryWatch.outlook(m_state.systemSample, m_state.sessions.sessions);
    publish(m_state.alerts,
            m_rules.evaluate(m_state.systemSample, m_state.processes, m_state.groups, m_cleanup.reclaimable(),
                             m_preferences, m_state.sessions.sessions, outlook));
    const QList<Incident> incidents = m_memoryWatch.incidents(before, m_state.alerts);
    if (!incidents.isEmpty())
        publish(m_state.incidents, (incidents + m_state.incidents).mid(0, maxIncidents));
}

const Incident* AppModel::incident(const QString& alertId) const {
    const auto found = std::ranges::find(m_state.incidents, alertId, &Incident::alertId);
    return found == m_state.incidents.end() ? nullptr : &*found;
}

void AppModel::followSessions(const QList<MCPInspector::LiveServer>& servers) {
    m_sessions.follow(m_state.processes);
    const bool hasRule = m_preferences.alertSessionBigEnabled();
    m_hasSessions = std::exchange(m_wantsSessions, false) || hasRule || m_memoryWatch.wantsSessions();
    if (m_hasSessions || m_state.sessions != SessionReport())
        publishSessions(m_hasSessions ? m_sessions.report(servers) : SessionReport());
    if (!hasRule)
        return;
    for (const Session& session : m_state.sessions.sessions)
        m_ledger.wantOnShow(session.pids());
}

void AppModel::publishSessions(SessionReport report) {
    for (Session& session : report.sessions) {
        if (m_actions.pausedSessions().contains(session.host))
            session.state = SessionState::paused;
    }
    publish(m_state.sessions, std::move(report));
}

void AppModel::wantSessions() {
    m_wantsSessions = true;
    if (!std::exchange(m_hasSessions, true))
        publishSessions(m_sessions.report(m_state.mcpReport.live));
}

QString AppModel::projectOf(const ProcSample& process) const {
    return ProgramPath::withTilde(QString::fromUtf8(m_platform.processes->workingDirectory(process.pid)));
}

QList<qint32> AppModel::pidsOf(ProcGroup group) const {
    QList<qint32> pids;
    for (const ProcSample& process : m_state.processes) {
        if (process.group == group)
            pids.append(process.pid);
    }
    return pids;
}

MemoryLineUp AppModel::memoryLineUp() const {
    return MemoryLineUp::of(m_state.systemSample, m_state.processes, m_platform.identity->userId());
}

void AppModel::appendHistory(const SystemSample& sample) {
    Q_EMIT objectWillChange();
    m_state.systemHistory.append(sample);
    const qsizetype surplus = m_state.systemHistory.size() - historyLimit();
    if (surplus > 0)
        m_state.systemHistory.remove(0, surplus);
    m_state.coreHistory.append(secondsOf(sample.timestamp), m_sampler.coreLoads(), historyLimit());
}

/// Appends the sums of this tick, unknown ones without groups.
void AppModel::appendGroups(const QList<GroupRollup>& groups) {
    QList<double> bytes;
    bytes.reserve(groups.size());
    for (const GroupRollup& group : groups)
        bytes.append(static_cast<double>(group.memory.bytes));
    m_state.groupHistory.append(secondsOf(m_state.systemSample.timestamp), bytes, historyLimit());
}

int AppModel::historyLimit() const {
    return m_preferences.historyRetentionSamples();
}

bool AppModel::isPaused() const {
    return m_preferences.pauseOnLowPower() && m_platform.power->isLowPowerModeEnabled();
}

void AppModel::setAutoOptimizeEnabled(bool enabled) {
    Q_EMIT objectWillChange();
    m_optimizer.setEnabled(enabled);
}

std::optional<ProcGroup> AppModel::chosenGroup(const ProcSample& process) const {
    const auto choices = m_preferences.programGroups();
    const auto found = choices.constFind(ProcessGrouper::programKey(process));
    return found == choices.constEnd() ? std::nullopt : std::optional(*found);
}

void AppModel::chooseGroup(const QList<ProcSample>& processes, std::optional<ProcGroup> group) {
    QSet<QString> programs;
    for (const ProcSample& process : processes)
        programs.insert(ProcessGrouper::programKey(process));
    m_preferences.storeProgramGroups(programs, group);
    m_grouper.setChoices(m_preferences.programGroups());
    m_sampler.classifyAnew();
    QList<ProcSample> regrouped = m_state.processes;
    for (ProcSample& process : regrouped)
        process.group = m_grouper.groupOf(process);
    publish(m_state.processes, std::move(regrouped));
    publish(m_state.groups, GroupRollup::build(m_state.processes));
}
