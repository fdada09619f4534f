#pragma once

#include "Core/ActionLog/ActionLogEntry.h"
#include "Core/Observable.h"

#include <QList>

#include <memory>

class Clock;

/// The record of what was done: the newest actions here, all of them in the log file.
class ActionLog : public Observable {
    Q_OBJECT

public:
    explicit ActionLog(std::shared_ptr<Clock> clock);

    /// Newest first, at most 200.
    const QList<ActionLogEntry>& entries() const { return m_entries; }

    /// Puts an action on record, here and in the log file.
    void log(const ActionLogEntry& entry);
    /// The same, made now, with the control characters of `detail` made visible.
    void record(ActionLogEntry::Kind kind, const QString& detail, quint64 freedBytes, bool success);

private:
    std::shared_ptr<Clock> m_clock;
    QList<ActionLogEntry> m_entries;
};
