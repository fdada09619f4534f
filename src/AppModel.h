#pragma once

#include "Core/ActionLog/ActionLog.h"
#include "Core/Alerts/RulesEngine.h"
#include "Core/Cleanup/CacheCleanup.h"
#include "Core/Cleanup/ProjectLeftovers.h"
#include "Core/Grouping/ProcessGrouper.h"
#include "Core/Inspection/ProcessFacts.h"
#include "Core/Mcp/MCPConfiguration.h"
#include "Core/Mcp/ServerWatch.h"
#include "Core/Memory/MemoryLedger.h"
#include "Core/Memory/MemoryLineUp.h"
#include "Core/Observable.h"
#include "Core/Relief/AutoOptimizer.h"
#include "Core/Relief/ProtectedProcesses.h"
#include "Core/Sampling/Sampler.h"
#include "Core/Sessions/SessionFinder.h"
#include "Model/MemoryWatch.h"
#include "Model/ProcessActions.h"
#include "Model/PublishedState.h"
#include "Platform/Platform.h"

#include <QTimer>

#include <optional>

class Preferences;

/// The one observable model. It samples the machine once per poll interval and publishes the figures that the
/// views show. It owns the parts that act and announces their changes with its own.
class AppModel : public Observable {
    Q_OBJECT

public:
    /// Returns the model of the running program, made at the first call.
    static AppModel& shared();

    AppModel(Platform platform, Preferences& preferences, QObject* parent = nullptr);

    /// Starts the timer, follows the poll interval and ticks once.
    void start();
    /// Samples the machine and publishes the figures. The timer calls it, and a program that needs no more
    /// than a look.
    Q_SLOT void tick();
    /// Samples the machine alone. The processes stay those of the last tick, and so does whom a signal may
    /// reach.
    void sampleMachine();
    /// Takes over how long a process has been idle from a program that has watched it for longer. The next
    /// tick shows it.
    void setIdle(const ProcessIdentity& process, double seconds) { m_sampler.setIdle(process, seconds); }
    /// Returns the period of the sampling timer in seconds, -1 while it is stopped.
    double timerInterval() const;
    /// Ticks now, unless the timer is stopped or the last tick was less than half a second ago.
    void tickEarly();

    const SystemSample& systemSample() const { return m_state.systemSample; }
    const QList<SystemSample>& systemHistory() const { return m_state.systemHistory; }
    const FigureHistory& coreHistory() const { return m_state.coreHistory; }
    const FigureHistory& groupHistory() const { return m_state.groupHistory; }
    const QList<ProcSample>& processes() const { return m_state.processes; }
    const ProcSample* process(qint32 pid) const { return m_state.process(pid); }
    const QList<GroupRollup>& groups() const { return m_state.groups; }
    /// Returns the parts of the used memory, by the last full tick.
    MemoryLineUp memoryLineUp() const;
    const QList<Alert>& alerts() const { return m_state.alerts; }
    /// Returns what went on before an alert of severity danger or a kill, null where nothing was kept.
    const Incident* incident(const QString& alertId) const;
    const MCPInspector::Report& mcpReport() const { return m_state.mcpReport; }
    const SessionReport& sessionReport() const { return m_state.sessions; }
    /// Wants the sessions at the next tick, and at once if nothing wanted them at the last. Views call it
    /// whenever they refresh, before they read the report.
    void wantSessions();

    /// Returns whether processes are not read now, to save power.
    bool isPaused() const;
    /// Returns how many samples the history holds at most.
    int historyLimit() const;
    /// The ledger of true memory. Views tell it what they show.
    MemoryLedger& memoryLedger() { return m_ledger; }
    /// What is read of processes only while a view shows it.
    ProcessFacts& facts() { return m_facts; }
    /// Finds the processes of the last full tick that no single press may end.
    ProtectedProcesses protectedProcesses() const;
    ActionLog& actionLog() { return m_actionLog; }
    const ActionLog& actionLog() const { return m_actionLog; }
    CacheCleanup& cleanup() { return m_cleanup; }
    const CacheCleanup& cleanup() const { return m_cleanup; }
    ProjectLeftovers& projectLeftovers() { return m_projectLeftovers; }
    ProcessActions& actions() { return m_actions; }
    const ProcessActions& actions() const { return m_actions; }

    /// Returns whether the optimizer is on; it is off when the program starts.
    bool autoOptimizeEnabled() const { return m_optimizer.enabled(); }
    /// Switches the optimizer. Every switch to on runs a pass, also when it was on.
    void setAutoOptimizeEnabled(bool enabled);

    /// Returns the group that the user chose for the program of a process, or an empty optional.
    std::optional<ProcGroup> chosenGroup(const ProcSample& process) const;
    /// Stores a group for the programs of these processes. An empty one removes the choice.
    void chooseGroup(const QList<ProcSample>& processes, std::optional<ProcGroup> group);

private:
    void followSessions(const QList<MCPInspector::LiveServer>& servers);
    void publishSessions(SessionReport report);
    void publishAlerts();
    QString projectOf(const ProcSample& process) const;
    void bindTimer(double intervalSeconds);
    void followPollInterval();
    void appendHistory(const SystemSample& sample);
    void appendGroups(const QList<GroupRollup>& groups);
    QList<qint32> pidsOf(ProcGroup group) const;

    Platform m_platform;
    Preferences& m_preferences;
    PublishedState m_state;
    ProcessGrouper m_grouper;
    Sampler m_sampler;
    MemoryLedger m_ledger;
    ProcessFacts m_facts;
    RulesEngine m_rules;
    MCPConfiguration m_mcpConfiguration;
    ServerWatch m_servers;
    SessionFinder m_sessions;
    bool m_wantsSessions = false;
    bool m_hasSessions = false; ///< the report is of the last full tick
    ActionLog m_actionLog;
    CacheCleanup m_cleanup;
    ProjectLeftovers m_projectLeftovers;
    ProcessActions m_actions;
    MemoryWatch m_memoryWatch;
    AutoOptimizer m_optimizer;
    QTimer m_timer;
    std::chrono::steady_clock::time_point m_lastTick;
    QMetaObject::Connection m_pollIntervalConnection;
};
