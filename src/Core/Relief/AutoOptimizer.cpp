#include "Core/Relief/AutoOptimizer.h"

#include "Platform/Relief.h"

#include <QPointer>

#include <utility>

using namespace Qt::StringLiterals;

AutoOptimizer::AutoOptimizer(OptimizedModel& model, std::shared_ptr<Relief> relief, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_relief(std::move(relief)) {
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
}

void AutoOptimizer::setEnabled(bool enabled) {
    if (enabled)
        start();
    else
        m_timer.stop();
}

void AutoOptimizer::start() {
    constexpr double millisecondsPerMinute = 60'000;
    m_timer.start(static_cast<int>(intervalMinutes * millisecondsPerMinute));
    tick();
}

QCoro::Task<> AutoOptimizer::tick() {
    const QPointer<AutoOptimizer> self(this);
    const int killed = m_model.killOrphanMCPs(false);
    auto nudge = m_relief->reclaimMemory();
    const Outcome nudged = co_await nudge;
    if (!self)
        co_return;
    m_model.record(ActionLogEntry::Kind::clean, u"memory_pressure -l warn"_s, 0, nudged.done);
    m_model.record(ActionLogEntry::Kind::clean, u"[auto-optimize] orphans=%1, pressure nudged"_s.arg(killed),
                   0, true);
}
