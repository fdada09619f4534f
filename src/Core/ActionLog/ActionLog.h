#pragma once

#include "Core/ActionLog/ActionLogEntry.h"
#include "Core/Observable.h"

#include <QList>

#include <memory>

class Clock;

/// The record of the actions: the newest in memory, all in the log file.
class ActionLog : public Observable {
    Q_OBJECT

public:
    explicit ActionLog(std::shared_ptr<Clock> clock);

    /// Returns the newest 200 actions, newest first.
    const QList<ActionLogEntry>& entries() const { return m_entries; }

    /// Adds an action here and to the log file.
    void log(const ActionLogEntry& entry);
    /// Adds an action of this moment, with the control characters of `detail` made visible.
    void record(ActionLogEntry::Kind kind, const QString& detail, quint64 freedBytes, bool success);

private:
    std::shared_ptr<Clock> m_clock;
    QList<ActionLogEntry> m_entries;
};
