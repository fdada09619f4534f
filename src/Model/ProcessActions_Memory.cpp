#include "Model/ProcessActions.h"

#include "Platform/Relief.h"

#include <QPointer>

using namespace Qt::StringLiterals;

QCoro::Task<Outcome> ProcessActions::nudgeMemory() {
    const QPointer<ProcessActions> self(this);
    auto nudge = m_platform.relief->reclaimMemory();
    const Outcome nudged = co_await nudge;
    if (self)
        m_log.record(ActionLogEntry::Kind::clean, u"memory_pressure -l warn"_s, 0, nudged.done);
    co_return nudged;
}

QCoro::Task<Outcome> ProcessActions::purgeMemory(std::stop_token stop) {
    const QPointer<ProcessActions> self(this);
    auto purge = m_platform.relief->dropCaches(stop);
    const Outcome purged = co_await purge;
    if (self)
        m_log.record(ActionLogEntry::Kind::clean, u"sudo purge (admin)"_s, 0, purged.done);
    co_return purged;
}
