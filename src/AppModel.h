#pragma once

#include "Core/ActionLog/ActionLogEntry.h"
#include "Core/Alerts/Alert.h"
#include "Core/Alerts/RulesEngine.h"
#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/Cleaner.h"
#include "Core/Cleanup/CleanupProgress.h"
#include "Core/Grouping/GroupRollup.h"
#include "Core/Grouping/ProcessGrouper.h"
#include "Core/Mcp/MCPConfiguration.h"
#include "Core/Mcp/ServerWatch.h"
#include "Core/Relief/AutoOptimizer.h"
#include "Core/Relief/FreeRAM.h"
#include "Core/Relief/NukePreview.h"
#include "Core/Sampling/ProcSample.h"
#include "Core/Sampling/Sampler.h"
#include "Core/Sampling/SystemSample.h"
#include "Platform/Platform.h"
#include "Platform/Result.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

class Preferences;
class ProcessHandle;

/// The one observable model: it samples the machine once per poll interval and publishes the figures that
/// every view shows. `objectWillChange` is emitted before each change lands; views use `observe`.
class AppModel : public QObject, public OptimizedModel {
    Q_OBJECT

public:
    /// The model of the running program; made on first use, never destroyed before the program ends.
    static AppModel& shared();

    AppModel(Platform platform, Preferences& preferences, QObject* parent = nullptr);

    /// Begins sampling: arms the timer, follows the poll interval, and ticks once at once.
    void start();

    const SystemSample& systemSample() const { return m_systemSample; }
    /// Oldest first; never more than Preferences::historyRetentionSamples() after a tick.
    const QList<SystemSample>& systemHistory() const { return m_systemHistory; }
    /// Largest resident memory first.
    const QList<ProcSample>& processes() const { return m_processes; }
    /// One per group, in group order; empty before the first tick.
    const QList<GroupRollup>& groups() const { return m_groups; }
    const QList<Alert>& alerts() const { return m_alerts; }
    const QList<CacheTarget>& cacheTargets() const { return m_cacheTargets; }
    /// Empty while no scan runs.
    const std::optional<CleanupProgress>& scanProgress() const { return m_scanProgress; }
    /// Empty while nothing is being cleaned; cleans that run at the same time are counted together.
    const std::optional<CleanupProgress>& cleanProgress() const { return m_cleanProgress; }
    const CleanupReport& cleanReport() const { return m_cleanReport; }
    bool isScanning() const { return m_scanProgress.has_value(); }
    bool isCleaning() const { return m_cleanProgress.has_value(); }

    /// Newest first, at most 200.
    const QList<ActionLogEntry>& actionLog() const { return m_actionLog; }
    /// As of the last full tick.
    const MCPInspector::Report& mcpReport() const { return m_mcpReport; }
    /// Off at every start of the program.
    bool autoOptimizeEnabled() const { return m_autoOptimizeEnabled; }
    /// Switching on runs a pass at once, also when it is on already.
    void setAutoOptimizeEnabled(bool enabled);

    /// Puts an action on record, here and in the log file.
    void log(const ActionLogEntry& entry);
    /// The same, made now, with the control characters of `detail` made visible.
    void record(ActionLogEntry::Kind kind, const QString& detail, quint64 freedBytes, bool success) override;

    /// The group that the user chose for the program of a process. Empty: it is as detected.
    std::optional<ProcGroup> chosenGroup(const ProcSample& process) const;
    /// Puts the programs of these processes into a group, from now on and at the next start too; empty leaves
    /// that to the rules again.
    void chooseGroup(const QList<ProcSample>& processes, std::optional<ProcGroup> group);

    /// As of the last tick; null when the system listed no such process.
    const ProcSample* process(qint32 pid) const;
    /// Signals the very process that the user pointed at, not another that has its id by now, and puts that
    /// on record.
    void quitProcess(const ProcSample& chosen);
    void forceKillProcess(const ProcSample& chosen);
    /// Asks a server of the report to end. Leaves no line in the log.
    void quitServer(const MCPInspector::LiveServer& server);

    /// Asks the kernel to reclaim memory; on record. Whether the request could be made.
    QCoro::Task<Outcome> nudgeMemory();
    /// Drops clean caches after the administrator's prompt; on record.
    QCoro::Task<Outcome> purgeMemory();

    /// Idle processes worth ending: at most 15, largest first. Idle time in minutes, size in MiB.
    QList<FreeRamPreview> freeRamCandidates(double minIdleMin, double minRSSMB) const;
    /// Asks each process to end, kills those that stay, asks the kernel to reclaim, and measures. Takes
    /// about 4 seconds; one entry in the log.
    QCoro::Task<FreeRAMResult> freeRAM(QList<qint32> pids);

    struct FreeRAMWaits {
        std::chrono::milliseconds beforeSecondPass{2000};
        std::chrono::milliseconds beforeMeasuring{1500};
    };
    /// For tests, which do not wait.
    void setFreeRAMWaits(FreeRAMWaits waits) { m_freeRAMWaits = waits; }

    struct QuickKillResult {
        int matched = 0;
        int killed = 0;

        bool operator==(const QuickKillResult&) const = default;
    };
    /// Signals every process of the user's that holds `pattern` in its name, path or arguments, in any case,
    /// and reaches both thresholds (minutes, MiB). One entry in the log.
    QuickKillResult quickKill(const QString& pattern, const QString& label, double minIdleMin,
                              double minRSSMB, bool force);
    /// How many processes `quickKill` would signal now.
    int previewMatches(const QString& pattern, double minIdleMin, double minRSSMB) const;

    /// Looks at the orphan servers of the last report again and signals those of the user that still are; how
    /// many servers got a signal. Their launchers are signalled with them.
    int killOrphanMCPs(bool force) override;

    /// All processes of exactly that name, this program left out.
    NukePreview previewForName(const QString& name) const;
    /// The application that all of them belong to, as the menu calls it. Asks the system.
    std::optional<QString> applicationOf(const QList<ProcSample>& processes) const;
    /// All processes of that application.
    NukePreview previewForApplication(const QString& application) const;
    /// Asks every process of the preview to end; the outcome in words.
    QString nuke(const NukePreview& preview);
    /// Asks the application itself to quit, which closes its helpers; the outcome in words.
    QCoro::Task<QString> nukeGracefulApp(NukePreview preview, QString appName, bool force);

    /// The period of the sampling timer in seconds, -1 while there is none.
    double timerInterval() const;

    /// Measures every cleanup target and publishes them largest first, when all are done. Of scans that
    /// overlap only the one that began last publishes.
    QCoro::Task<> rescanCaches();
    /// Cleans one target, logs it and measures again.
    QCoro::Task<> clean(CacheTarget target);
    /// Every target whose size is known and above 0: what "Clean All" is about, to be shown before.
    QList<CacheTarget> targetsToClean() const;
    /// Cleans these targets, one after another, logs each and measures again. How many were cleaned without a
    /// failure, and how many bytes those freed.
    QCoro::Task<std::pair<int, quint64>> cleanAll(QList<CacheTarget> targets);
    /// Ends every clean that runs, and begins none of those that wait. Each that was running has failed.
    void cancelCleaning();

Q_SIGNALS:
    void objectWillChange();

private Q_SLOTS:
    void tick();

private:
    template <typename T> void publish(T& property, T value) {
        Q_EMIT objectWillChange();
        property = std::move(value);
    }
    void bindTimer(double intervalSeconds);
    void followPollInterval();
    void appendHistory(const SystemSample& sample);
    bool isPaused() const;
    void expectCleans(int count);
    void countCleans(int done);
    void reportFailure(const CleanupFailure& failure);
    QCoro::Task<Cleaner::CleanResult> cleanOne(CacheTarget target, QString logDetail, std::stop_token stop);
    AutoOptimizer& autoOptimizer();
    std::optional<QString> applicationOf(const ProcSample& process) const;
    QList<ProcSample> processesOf(const QString& application) const;
    QList<ProcSample> inTerminalsOf(const QList<ProcSample>& processes) const;
    void signalChosen(const ProcSample& chosen, bool force);
    QList<ProcSample> orphansLookedAtAgain() const;
    int signalServer(const MCPInspector::LiveServer& server, bool force);
    QList<ProcSample> quickKillMatches(const QString& pattern, double minIdleMin, double minRSSMB) const;
    /// To the process that the last tick listed under the id, and to no other that has the id by now.
    std::shared_ptr<ProcessHandle> hold(qint32 pid) const;
    /// How many of the signals were delivered.
    int signalAll(const QList<qint32>& pids, bool force);

    SystemSample m_systemSample = SystemSample::zero();
    QList<SystemSample> m_systemHistory;
    QList<ProcSample> m_processes;
    QList<GroupRollup> m_groups;
    QList<Alert> m_alerts;
    QList<CacheTarget> m_cacheTargets = CacheTarget::defaults();
    std::optional<CleanupProgress> m_scanProgress;
    std::optional<CleanupProgress> m_cleanProgress;
    CleanupReport m_cleanReport;
    int m_scansBegun = 0;
    std::stop_source m_cleaning; ///< of all cleans that run
    QList<ActionLogEntry> m_actionLog;
    MCPInspector::Report m_mcpReport;
    bool m_autoOptimizeEnabled = false;

    Platform m_platform;
    Preferences& m_preferences;
    Sampler m_sampler;
    ProcessGrouper m_grouper;
    RulesEngine m_rules;
    MCPConfiguration m_mcpConfiguration;
    ServerWatch m_servers;
    std::unique_ptr<AutoOptimizer> m_autoOptimizer;
    FreeRAMWaits m_freeRAMWaits;
    QTimer m_timer;
    QMetaObject::Connection m_pollIntervalCancellable;
};
