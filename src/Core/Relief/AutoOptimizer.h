#pragma once

#include "Platform/Result.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>

class ActionLog;

/// The relief actions that may be repeated without asking; each is on record when it is done.
class SafeRelief {
public:
    virtual ~SafeRelief() = default;

    /// How many orphan MCP servers were signalled.
    virtual int killOrphanMCPs(bool force) = 0;
    /// Asks the system to reclaim memory.
    virtual QCoro::Task<Outcome> nudgeMemory() = 0;
};

/// Repeats the safe relief actions while it is enabled: once at once, then every 30 minutes.
class AutoOptimizer : public QObject {
    Q_OBJECT

public:
    /// Both outlive the optimizer.
    AutoOptimizer(SafeRelief& relief, ActionLog& log, QObject* parent = nullptr);

    bool enabled() const { return m_timer.isActive(); }
    /// Enabling again starts the period anew and runs one more pass.
    void setEnabled(bool enabled);

private:
    void start();
    QCoro::Task<> tick();

    static constexpr double intervalMinutes = 30;

    SafeRelief& m_relief;
    ActionLog& m_log;
    QTimer m_timer{this};
};
