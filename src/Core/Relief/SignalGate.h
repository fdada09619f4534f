#pragma once

#include <QList>

#include <memory>

class ProcessHandle;
class Sampler;
class Signals;

/// Sends the model's signals, none to a process that reuses the PID of one that the last tick listed. A PID
/// that was not listed stands for whatever has it now.
class SignalGate {
public:
    /// `sampler`, which lists the processes, outlives the gate.
    SignalGate(std::shared_ptr<Signals> sender, const Sampler& sampler);

    /// Returns a handle, never null. It reaches no process where the PID was reused.
    std::shared_ptr<ProcessHandle> hold(qint32 pid) const;
    /// Asks or forces each process to end, and returns how many signals were delivered.
    int signalAll(const QList<qint32>& pids, bool force) const;

private:
    std::shared_ptr<Signals> m_sender;
    const Sampler& m_sampler;
};
