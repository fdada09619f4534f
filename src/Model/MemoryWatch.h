#pragma once

#include "Core/ActionLog/ActionLog.h"
#include "Core/Pressure/FlightRecorder.h"
#include "Core/Pressure/GrowthWatch.h"
#include "Core/Pressure/MemoryOutlook.h"
#include "Core/Pressure/PressureWatch.h"
#include "Platform/Platform.h"

#include <QCoroTask>
#include <QObject>

/// Watches the memory from tick to tick: pressure, growth, what was ended for lack of it, and what went on
/// before.
class MemoryWatch : public QObject {
    Q_OBJECT

public:
    MemoryWatch(const Platform& platform, ActionLog& log);

    /// Takes the figures of a tick. `processes` are the largest resident size first.
    void tick(const SystemSample& system, const QList<ProcSample>& processes,
              const QList<GroupRollup>& groups);
    /// Returns what the rules need; the forecast may name one of the sessions.
    MemoryOutlook outlook(const SystemSample& system, const QList<Session>& sessions) const;
    /// Returns whether the next forecast may name a session.
    bool wantsSessions() const { return m_growth.hasForecast(); }
    QList<qint32> suspects() const { return m_growth.suspects(); }

    /// Returns what went on before this tick's alerts, one for each new alert of severity danger and each
    /// kill.
    QList<Incident> incidents(const QList<Alert>& before, const QList<Alert>& now) const;

Q_SIGNALS:
    /// Emitted when programs wait for memory, at most every two seconds.
    void stalled();

private:
    void hear(Pressure::Stall stall);
    void followKills(const SystemSample& system, const QList<ProcSample>& processes);
    QCoro::Task<> nameKills();
    void enter(const MemoryKill& kill, const QString& largest);

    Platform m_platform;
    ActionLog& m_log;
    PressureWatch m_pressure;
    GrowthWatch m_growth;
    FlightRecorder m_recorder;
    KernelKills m_kills;
    QList<MemoryKill> m_entered; ///< newest first
    bool m_isNaming = false;
    Instant m_lastTick;
    QString m_largest;                    ///< the processes before the kill that is being named
    std::optional<Instant> m_recordSince; ///< where the record is read from at the next tick
};
