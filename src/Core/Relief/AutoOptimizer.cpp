#include "Core/Relief/AutoOptimizer.h"

#include "Core/ActionLog/ActionLog.h"

#include <QPointer>

using namespace Qt::StringLiterals;

AutoOptimizer::AutoOptimizer(SafeRelief& relief, ActionLog& log, QObject* parent)
    : QObject(parent)
    , m_relief(relief)
    , m_log(log) {
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
}

void AutoOptimizer::setEnabled(bool enabled) {
    m_timer.stop();
    if (!enabled)
        return;
    constexpr double millisecondsPerMinute = 60'000;
    m_timer.start(static_cast<int>(intervalMinutes * millisecondsPerMinute));
    tick();
}

QCoro::Task<> AutoOptimizer::tick() {
    const QPointer<AutoOptimizer> self(this);
    const int killed = m_relief.killOrphanMCPs(false);
    auto nudge = m_relief.nudgeMemory();
    co_await nudge;
    if (self)
        m_log.record(ActionLogEntry::Kind::clean,
                     u"[auto-optimize] orphans=%1, pressure nudged"_s.arg(killed), 0, true);
}
