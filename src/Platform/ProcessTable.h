#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>
#include <QtGlobal>

#include <chrono>
#include <optional>
#include <span>

/// The figures of a process that change from pass to pass.
struct TaskInfo {
    quint64 virtualBytes = 0;
    quint64 residentBytes = 0;
    std::optional<quint64> anonymousBytes; ///< the part of these that no file or shared memory backs
    quint64 cpuTimeNs = 0;                 ///< user + system, since the process started
    int threads = 0;

    bool operator==(const TaskInfo&) const = default;
};

/// The kernel's record of a process.
struct KernelProcessInfo {
    std::chrono::system_clock::time_point start;
    quint32 uid = 0; ///< effective user id
    qint32 parentPid = 0;
    quint64 startTicks = 0; ///< since boot; tells processes of one PID apart whatever the clock says
};

/// What is read when a process is first seen and after it has changed. Texts are the system's raw bytes in
/// any encoding; an unreadable text is empty.
struct ProcessOrigin {
    QByteArray executablePath;
    QByteArray shortName;
    QByteArray argumentArea; ///< the arguments, each ended by a NUL
    std::optional<KernelProcessInfo> kernelInfo;
    quint64 textHash = 0; ///< of the texts above
};

/// What a process got from those that started it, and keeps when they have ended.
struct ProcessInheritance {
    qint32 sessionLeader = 0;                ///< of its process session (setsid(2)); 0 when unknown
    QByteArray controlGroup;                 ///< empty when unknown
    QHash<QByteArray, QByteArray> variables; ///< of those asked for, the ones in its environment

    bool operator==(const ProcessInheritance&) const = default;
};

/// The service manager or container that keeps a process running.
struct ProcessKeeper {
    enum class Kind { none, service, container };

    Kind kind = Kind::none;
    QByteArray name;    ///< of the service's unit or of the container
    qint32 mainPid = 0; ///< the process that the service manager itself started; 0 when unknown

    bool operator==(const ProcessKeeper&) const = default;
};

/// The system's processes.
class ProcessTable {
public:
    virtual ~ProcessTable() = default;

    /// Writes as many PIDs into `pids` as fit and returns their number, or a value below 1 on failure.
    virtual int listAllPids(std::span<qint32> pids) = 0;
    /// Returns an empty optional when the process is gone or unreadable.
    virtual std::optional<TaskInfo> taskInfo(qint32 pid) = 0;
    virtual ProcessOrigin origin(qint32 pid) = 0;
    /// Returns the `kernelInfo` of `origin` alone.
    virtual std::optional<KernelProcessInfo> kernelInfo(qint32 pid) = 0;
    /// Returns the hash of name, arguments and executable, at a fraction of the cost of `origin`. Returns an
    /// empty optional when the process is gone.
    virtual std::optional<quint64> textHash(qint32 pid) = 0;
    /// Returns an empty path when the working directory is unreadable.
    virtual QByteArray workingDirectory(qint32 pid) = 0;
    virtual ProcessKeeper keeper(qint32 pid) = 0;
    /// Asks for environment variables by name. An unreadable environment has none.
    virtual ProcessInheritance inheritance(qint32 pid, const QByteArrayList& variables) = 0;
};
