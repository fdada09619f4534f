#pragma once

#include "Core/Cleaner.h"
#include "Core/CleanupProgress.h"
#include "Core/Models.h"
#include "Core/ProcessGrouper.h"
#include "Core/RulesEngine.h"
#include "Core/Sampler.h"
#include "Platform/Platform.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>

#include <optional>
#include <utility>

class Preferences;

/// The one observable model: it samples the machine once per poll interval and publishes the figures that
/// every view shows. `objectWillChange` is emitted before each change lands; views use `observe`.
class AppModel : public QObject {
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
    const QList<ActionLogEntry>& actionLog() const { return m_actionLog; }
    void log(const ActionLogEntry& entry);
    /// Empty while no scan runs.
    const std::optional<CleanupProgress>& scanProgress() const { return m_scanProgress; }
    /// Empty while nothing is being cleaned; cleans that run at the same time are counted together.
    const std::optional<CleanupProgress>& cleanProgress() const { return m_cleanProgress; }
    bool isScanning() const { return m_scanProgress.has_value(); }
    bool isCleaning() const { return m_cleanProgress.has_value(); }

    /// The period of the sampling timer in seconds, -1 while there is none.
    double timerInterval() const;

    /// Measures every cleanup target and publishes them largest first, when all are done. Of scans that
    /// overlap only the one that began last publishes.
    QCoro::Task<> rescanCaches();
    /// Cleans one target, logs it and measures again.
    QCoro::Task<> clean(CacheTarget target);
    /// Cleans every target whose size is known and above 0, one after another, logs each and measures
    /// again. How many were cleaned without a failure, and how many bytes those freed.
    QCoro::Task<std::pair<int, quint64>> cleanAll();

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
    QCoro::Task<Cleaner::CleanResult> cleanOne(CacheTarget target, QString logDetail);

    SystemSample m_systemSample = SystemSample::zero();
    QList<SystemSample> m_systemHistory;
    QList<ProcSample> m_processes;
    QList<GroupRollup> m_groups;
    QList<Alert> m_alerts;
    QList<CacheTarget> m_cacheTargets = CacheTarget::defaults();
    std::optional<CleanupProgress> m_scanProgress;
    std::optional<CleanupProgress> m_cleanProgress;
    int m_scansBegun = 0;
    QList<ActionLogEntry> m_actionLog;

    Platform m_platform;
    Preferences& m_preferences;
    Sampler m_sampler;
    ProcessGrouper m_grouper;
    RulesEngine m_rules;
    QTimer m_timer;
    QMetaObject::Connection m_pollIntervalCancellable;
};
