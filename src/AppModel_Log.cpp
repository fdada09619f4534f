#include "AppModel.h"

#include "Core/ActionLog/ActionLogFile.h"
#include "Core/Formatters.h"
#include "Platform/Clock.h"

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

void AppModel::record(ActionLogEntry::Kind kind, const QString& detail, quint64 freedBytes, bool success) {
    log({.id = QUuid::createUuid(),
         .timestamp = m_platform.clock->now(),
         .kind = kind,
         .detail = Formatters::visible(detail), // a name from outside could forge a line
         .freedBytes = freedBytes,
         .success = success});
}
