#include "Core/ActionLog/ActionLog.h"

#include "Core/ActionLog/ActionLogFile.h"
#include "Core/Formatters.h"
#include "Platform/Clock.h"

constexpr qsizetype maxEntries = 200;

ActionLog::ActionLog(std::shared_ptr<Clock> clock)
    : m_clock(std::move(clock)) {}

void ActionLog::log(const ActionLogEntry& entry) {
    QList<ActionLogEntry> entries = m_entries;
    entries.prepend(entry);
    if (entries.size() > maxEntries)
        entries.resize(maxEntries);
    publish(m_entries, std::move(entries));
    ActionLogFile::append(entry);
}

void ActionLog::record(ActionLogEntry::Kind kind, const QString& detail, quint64 freedBytes, bool success) {
    log({.id = QUuid::createUuid(),
         .timestamp = m_clock->now(),
         .kind = kind,
         .detail = Formatters::visible(detail), // a name from outside could forge a line
         .freedBytes = freedBytes,
         .success = success});
}
