#pragma once

#include <QCoroTask>
#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <optional>

/// A process that was ended because memory ran out, by the system's own record.
struct RecordedKill {
    qint32 pid = 0;
    QString name;
    std::optional<quint64> bytes; ///< anonymous memory that it held
    QString by;                   ///< the program that ended it, empty for the kernel

    bool operator==(const RecordedKill&) const = default;
};

/// Tells what was ended because memory ran out.
class MemoryKills : public QObject {
    Q_OBJECT

public:
    /// Returns how many processes the kernel has ended so far, empty where it does not tell.
    virtual std::optional<quint64> count() { return {}; }
    /// Returns the kills since `time` in the system's record; none where it is not readable.
    virtual QCoro::Task<QList<RecordedKill>> since(std::chrono::system_clock::time_point) { co_return {}; }

Q_SIGNALS:
    /// Emitted when a service that watches memory has ended a control group. `by` is the service's name.
    void groupEnded(QString group, QString by);
};
