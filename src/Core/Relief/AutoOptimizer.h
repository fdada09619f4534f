#pragma once

#include "Platform/Result.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>

class ActionLog;

/// The relief actions that may be repeated without asking. Each leaves a line in the log.
class SafeRelief {
public:
    virtual ~SafeRelief() = default;

    /// Signals the orphan MCP servers, and returns how many.
    virtual int killOrphanMCPs(bool force) = 0;
    /// Asks the system to reclaim memory.
    virtual QCoro::Task<Outcome> nudgeMemory() = 0;
};

/// Repeats the safe relief actions every 30 minutes while it is enabled.
class AutoOptimizer : public QObject {
    Q_OBJECT

public:
    /// `relief` and `log` outlive the optimizer.
    AutoOptimizer(SafeRelief& relief, ActionLog& log, QObject* parent = nullptr);

    bool enabled() const { return m_timer.isActive(); }
    /// Runs a pass and restarts the period each time it is enabled.
    void setEnabled(bool enabled);

private:
    QCoro::Task<> tick();

    static constexpr double intervalMinutes = 30;

    SafeRelief& m_relief;
    ActionLog& m_log;
    QTimer m_timer{this};
};
