#pragma once

#include <QtGlobal>

#include <memory>

/// The signals this program sends; the values are the ones kill(2) takes.
enum class Signal { probe = 0, kill = 9, terminate = 15, resume = 18, pause = 19 };

/// The result of sending a signal, as of kill(2).
enum class SignalResult {
    delivered,
    notPermitted,  ///< EPERM
    noSuchProcess, ///< ESRCH
    other
};

/// A handle of one process. Its signals never reach a later process with the same PID.
class ProcessHandle {
public:
    virtual ~ProcessHandle() = default;

    virtual SignalResult send(Signal signal) = 0;
};

/// Sends signals to processes.
class Signals {
public:
    virtual ~Signals() = default;

    /// Returns a handle of the process. For an unused PID or one below 1 the handle answers `noSuchProcess`.
    virtual std::shared_ptr<ProcessHandle> hold(qint32 pid) = 0;
};
