#include "AppModel.h"

#include "Core/ActionLogFile.h"

namespace {

constexpr qsizetype newestKept = 200;

} // namespace

void AppModel::log(const ActionLogEntry& entry) {
    QList<ActionLogEntry> entries = m_actionLog;
    entries.prepend(entry);
    if (entries.size() > newestKept)
        entries.resize(newestKept);
    publish(m_actionLog, std::move(entries));
    Cleaner::appendActionLog(entry);
}
