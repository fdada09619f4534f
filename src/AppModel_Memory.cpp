#include "AppModel.h"

#include <QPointer>

using namespace Qt::StringLiterals;

QCoro::Task<Cleaner::MemoryAnswer> AppModel::nudgeMemory() {
    const QPointer<AppModel> self(this);
    auto nudge = Cleaner::memoryPressure(m_platform.tools);
    const Cleaner::MemoryAnswer nudged = co_await nudge;
    if (self)
        record(ActionLogEntry::Kind::clean, u"memory_pressure -l warn"_s, 0, nudged.done);
    co_return nudged;
}

QCoro::Task<Cleaner::MemoryAnswer> AppModel::purgeMemory() {
    const QPointer<AppModel> self(this);
    auto purge = Cleaner::deepPurge(m_platform.tools);
    const Cleaner::MemoryAnswer purged = co_await purge;
    if (self)
        record(ActionLogEntry::Kind::clean, u"sudo purge (admin)"_s, 0, purged.done);
    co_return purged;
}
