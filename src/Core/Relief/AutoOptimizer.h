#pragma once

#include "Core/ActionLog/ActionLogEntry.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>

#include <memory>

class Relief;

/// What the optimizer asks of the model that owns it.
class OptimizedModel {
public:
    virtual ~OptimizedModel() = default;

    /// How many orphan MCP servers were signalled; on record when it returns.
    virtual int killOrphanMCPs(bool force) = 0;
    virtual void record(ActionLogEntry::Kind kind, const QString& detail, quint64 freedBytes,
                        bool success) = 0;
};

/// Repeats the safe relief actions while it is enabled: once at once, then every 30 minutes.
class AutoOptimizer : public QObject {
    Q_OBJECT

public:
    /// `model` owns the optimizer and so outlives it.
    AutoOptimizer(OptimizedModel& model, std::shared_ptr<Relief> relief, QObject* parent = nullptr);

    bool enabled() const { return m_timer.isActive(); }
    /// Enabling again starts the period anew and runs one more pass.
    void setEnabled(bool enabled);

private:
    void start();
    QCoro::Task<> tick();

    static constexpr double intervalMinutes = 30;

    OptimizedModel& m_model;
    std::shared_ptr<Relief> m_relief;
    QTimer m_timer{this};
};
