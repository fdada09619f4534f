#pragma once

#include <QtGlobal>

#include <memory>

/// The signals this program sends; the values are the ones kill(2) takes.
enum class Signal { probe = 0, kill = 9, terminate = 15 };

/// What became of sending a signal, in the sense of kill(2).
enum class SignalResult {
    delivered,
    notPermitted,  ///< EPERM
    noSuchProcess, ///< ESRCH
    other
};

/// One particular process. A signal sent through it never reaches another process that was later given
/// the same id.
class ProcessHandle {
public:
    virtual ~ProcessHandle() = default;

    virtual SignalResult send(Signal signal) = 0;
};

/// Sends signals to processes.
class Signals {
public:
    virtual ~Signals() = default;

    /// Never null: a handle to an id that nobody has answers `noSuchProcess` for good.
    /// An id below 1 is nobody's, and never means a group of processes.
    virtual std::shared_ptr<ProcessHandle> hold(qint32 pid) = 0;
};
