#pragma once

#include "Core/Models.h"
#include "Core/ProcessGrouper.h"
#include "Core/RulesEngine.h"
#include "Core/Sampler.h"
#include "Platform/Platform.h"

#include <QObject>
#include <QTimer>

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

    /// The period of the sampling timer in seconds, -1 while there is none.
    double timerInterval() const;

Q_SIGNALS:
    void objectWillChange();

private Q_SLOTS:
    void tick();

private:
    template <typename T> void publish(T& property, T value);
    void bindTimer(double intervalSeconds);
    void followPollInterval();
    void appendHistory(const SystemSample& sample);
    bool isPaused() const;

    SystemSample m_systemSample = SystemSample::zero();
    QList<SystemSample> m_systemHistory;
    QList<ProcSample> m_processes;
    QList<GroupRollup> m_groups;
    QList<Alert> m_alerts;
    QList<CacheTarget> m_cacheTargets = CacheTarget::defaults();

    Platform m_platform;
    Preferences& m_preferences;
    Sampler m_sampler;
    ProcessGrouper m_grouper;
    RulesEngine m_rules;
    QTimer m_timer;
    QMetaObject::Connection m_pollIntervalCancellable;
};
