#pragma once

#include "Core/ActionLog/ActionLog.h"
#include "Core/Alerts/RulesEngine.h"
#include "Core/Cleanup/CacheCleanup.h"
#include "Core/Grouping/ProcessGrouper.h"
#include "Core/Mcp/MCPConfiguration.h"
#include "Core/Mcp/ServerWatch.h"
#include "Core/Observable.h"
#include "Core/Relief/AutoOptimizer.h"
#include "Core/Sampling/Sampler.h"
#include "Model/ProcessActions.h"
#include "Model/PublishedState.h"
#include "Platform/Platform.h"

#include <QTimer>

#include <optional>

class Preferences;

/// The one observable model: it samples the machine once per poll interval and publishes the figures that
/// every view shows. It owns the parts that act, and announces their changes with its own.
class AppModel : public Observable {
    Q_OBJECT

public:
    /// The model of the running program; made on first use, never destroyed before the program ends.
    static AppModel& shared();

    AppModel(Platform platform, Preferences& preferences, QObject* parent = nullptr);

    /// Begins sampling: arms the timer, follows the poll interval, and ticks once at once.
    void start();
    /// The period of the sampling timer in seconds, -1 while there is none.
    double timerInterval() const;

    const SystemSample& systemSample() const { return m_state.systemSample; }
    const QList<SystemSample>& systemHistory() const { return m_state.systemHistory; }
    const QList<ProcSample>& processes() const { return m_state.processes; }
    const ProcSample* process(qint32 pid) const { return m_state.process(pid); }
    const QList<GroupRollup>& groups() const { return m_state.groups; }
    const QList<Alert>& alerts() const { return m_state.alerts; }
    const MCPInspector::Report& mcpReport() const { return m_state.mcpReport; }

    ActionLog& actionLog() { return m_actionLog; }
    const ActionLog& actionLog() const { return m_actionLog; }
    CacheCleanup& cleanup() { return m_cleanup; }
    const CacheCleanup& cleanup() const { return m_cleanup; }
    ProcessActions& actions() { return m_actions; }
    const ProcessActions& actions() const { return m_actions; }

    /// Off at every start of the program.
    bool autoOptimizeEnabled() const { return m_optimizer.enabled(); }
    /// Switching on runs a pass at once, also when it is on already.
    void setAutoOptimizeEnabled(bool enabled);

    /// The group that the user chose for the program of a process. Empty: it is as detected.
    std::optional<ProcGroup> chosenGroup(const ProcSample& process) const;
    /// Puts the programs of these processes into a group, from now on and at the next start too; empty leaves
    /// that to the rules again.
    void chooseGroup(const QList<ProcSample>& processes, std::optional<ProcGroup> group);

private Q_SLOTS:
    void tick();

private:
    void bindTimer(double intervalSeconds);
    void followPollInterval();
    void appendHistory(const SystemSample& sample);
    bool isPaused() const;

    Platform m_platform;
    Preferences& m_preferences;
    PublishedState m_state;
    ProcessGrouper m_grouper;
    Sampler m_sampler;
    RulesEngine m_rules;
    MCPConfiguration m_mcpConfiguration;
    ServerWatch m_servers;
    ActionLog m_actionLog;
    CacheCleanup m_cleanup;
    ProcessActions m_actions;
    AutoOptimizer m_optimizer;
    QTimer m_timer;
    QMetaObject::Connection m_pollIntervalCancellable;
};
