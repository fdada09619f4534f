#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <chrono>
#include <optional>
#include <span>

/// What changes from pass to pass about one process.
struct TaskInfo {
    quint64 virtualBytes = 0;
    quint64 residentBytes = 0;
    quint64 cpuTimeNs = 0; ///< user + system, since the process started
    int threads = 0;

    bool operator==(const TaskInfo&) const = default;
};

/// What the kernel knows of a process's origin.
struct KernelProcessInfo {
    std::chrono::system_clock::time_point start;
    quint32 uid = 0; ///< effective user id
    qint32 parentPid = 0;
    quint64 startTicks =
        0; ///< since boot; whatever is done to the clock, it tells two processes of one id apart
};

/// What is read when a process is first seen, and again once it has changed. Texts are the system's raw
/// bytes, in no particular encoding; an empty one means that it could not be read.
struct ProcessOrigin {
    QByteArray executablePath;
    QByteArray shortName;
    QByteArray argumentArea; ///< as the process sees it: strings each ended by a NUL
    std::optional<KernelProcessInfo> kernelInfo;
    quint64 textMark = 0; ///< of the texts above
};

/// Who keeps a process running, where that is not the program that started it.
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

    /// Writes process ids into `pids` and returns how many, or a value below 1 on failure. Ids beyond
    /// the room given are left out.
    virtual int listAllPids(std::span<qint32> pids) = 0;
    /// Empty when the process is gone or may not be read.
    virtual std::optional<TaskInfo> taskInfo(qint32 pid) = 0;
    virtual ProcessOrigin origin(qint32 pid) = 0;
    /// The same as in `origin`, where nothing else of it is needed.
    virtual std::optional<KernelProcessInfo> kernelInfo(qint32 pid) = 0;
    /// A figure that differs once the process has taken another program, name or arguments, at a fraction of
    /// the price of `origin`. Empty when the process is gone.
    virtual std::optional<quint64> textMark(qint32 pid) = 0;
    /// The folder that a process works in; empty when it may not be read.
    virtual QByteArray workingFolder(qint32 pid) = 0;
    virtual ProcessKeeper keeper(qint32 pid) = 0;
};
