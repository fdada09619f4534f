#include "Model/ProcessActions.h"

#include <QPointer>

using namespace Qt::StringLiterals;

QCoro::Task<Cleaner::MemoryAnswer> ProcessActions::askToReclaim() const {
    return Cleaner::memoryPressure(m_platform.tools);
}

QCoro::Task<Cleaner::MemoryAnswer> ProcessActions::nudgeMemory() {
    const QPointer<ProcessActions> self(this);
    auto nudge = askToReclaim();
    const Cleaner::MemoryAnswer nudged = co_await nudge;
    if (self)
        m_log.record(ActionLogEntry::Kind::clean, u"memory_pressure -l warn"_s, 0, nudged.done);
    co_return nudged;
}

QCoro::Task<Cleaner::MemoryAnswer> ProcessActions::purgeMemory() {
    const QPointer<ProcessActions> self(this);
    auto purge = Cleaner::deepPurge(m_platform.tools);
    const Cleaner::MemoryAnswer purged = co_await purge;
    if (self)
        m_log.record(ActionLogEntry::Kind::clean, u"sudo purge (admin)"_s, 0, purged.done);
    co_return purged;
}
