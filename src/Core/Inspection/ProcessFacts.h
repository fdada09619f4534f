#pragma once

#include "Core/Observable.h"
#include "Core/Sampling/ProcSample.h"

#include <QCoroTask>
#include <QHash>
#include <QList>
#include <QSet>

#include <chrono>
#include <optional>

class Applications;
class Clock;
class Identity;
class ListeningPorts;
class ProcessDetails;
struct Application;
struct DiskCounters;
struct EnvironmentVariable;
struct Platform;
struct ProcessInspection;

/// What a process reads from disks and writes to them, in bytes a second.
struct DiskRate {
    double read = 0;
    double written = 0;

    bool operator==(const DiskRate&) const = default;
};

/// What views show of processes besides the figures of the tick, read only when a view asks. Threads read it,
/// and what was wanted is announced as a change once it is known. Only `application`, and which sockets
/// listen, is read at once.
class ProcessFacts : public Observable {
    Q_OBJECT

public:
    explicit ProcessFacts(const Platform& platform);

    /// Wants the disk rates of those of these processes that are the user's own. Views ask whenever they
    /// refresh; a reading is made once a second at most. What is no longer asked for is forgotten.
    void wantDisk(const QList<ProcSample>& processes);
    /// Returns an empty optional until a process was read twice.
    std::optional<DiskRate> diskRate(const ProcSample& process) const;

    /// Returns the user's name, and the number until that is known.
    QString userName(quint32 uid);

    /// Wants to know which of these processes listen on the port.
    void wantListeners(quint16 port, const QList<ProcSample>& processes);
    bool listens(qint32 pid, quint16 port) const {
        return m_listenedPort == port && m_listeners.contains(pid);
    }

    /// Reads what the system tells of one process. Empty when it cannot be read now.
    QCoro::Task<std::optional<ProcessInspection>> inspect(qint32 pid) const;
    /// Finds the application that a process belongs to, now.
    std::optional<Application> application(qint32 pid) const;
    /// Reads the environment that a process was started with. Empty when it is refused.
    QCoro::Task<std::optional<QList<EnvironmentVariable>>> environment(qint32 pid) const;

private:
    using Uptime = std::chrono::steady_clock::time_point;

    struct Disk {
        Instant startTime;
        std::optional<DiskRate> rate;
        quint64 readBytes = 0;
        quint64 writtenBytes = 0;
        Uptime readAt;
    };

    QCoro::Task<> readDisk(QList<ProcessIdentity> processes);
    void takeOver(const QList<ProcessIdentity>& processes, const QList<std::optional<DiskCounters>>& counters,
                  Uptime at);
    QCoro::Task<> askUserName(quint32 uid);
    QCoro::Task<> findListeners(quint16 port, QSet<quint64> sockets, QList<qint32> pids);

    std::shared_ptr<ProcessDetails> m_details;
    std::shared_ptr<ListeningPorts> m_ports;
    std::shared_ptr<Applications> m_applications;
    std::shared_ptr<Identity> m_identity;
    std::shared_ptr<Clock> m_clock;
    QHash<qint32, Disk> m_disks; ///< by PID
    bool m_readsDisk = false;
    std::optional<Uptime> m_diskAskedAt;
    QHash<quint32, QString> m_userNames; ///< by id; the number while it is asked for
    quint16 m_listenedPort = 0;
    QSet<quint64> m_listenedSockets; ///< of that port, as of the last search
    QSet<qint32> m_listeners;
    bool m_seeksListeners = false;
};
