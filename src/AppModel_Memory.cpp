#include "AppModel.h"

#include "Core/MemoryTools.h"

#include <QPointer>

using namespace Qt::StringLiterals;

QCoro::Task<bool> AppModel::nudgeMemory() {
    const QPointer<AppModel> self(this);
    auto nudge = Cleaner::memoryPressure(m_platform.tools);
    const bool nudged = co_await nudge;
    if (self)
        record(ActionLogEntry::Kind::clean, u"memory_pressure -l warn"_s, 0, nudged);
    co_return nudged;
}

QCoro::Task<bool> AppModel::purgeMemory() {
    const QPointer<AppModel> self(this);
    auto purge = Cleaner::deepPurge(m_platform.tools);
    const bool purged = co_await purge;
    if (self)
        record(ActionLogEntry::Kind::clean, u"sudo purge (admin)"_s, 0, purged);
    co_return purged;
}
