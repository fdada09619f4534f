#pragma once

#include <QList>

#include <memory>

class ProcessHandle;
class Sampler;
class Signals;

/// Every signal goes through here: to a process that the last tick listed, and to no other that has its id
/// by now.
class SignalGate {
public:
    /// `sampler`, which did the listing, outlives the gate.
    SignalGate(std::shared_ptr<Signals> sender, const Sampler& sampler);

    /// Never null; a handle to nobody where the id has passed on.
    std::shared_ptr<ProcessHandle> hold(qint32 pid) const;
    /// Asks each to end, or ends it by force. How many of the signals were delivered.
    int signalAll(const QList<qint32>& pids, bool force) const;

private:
    std::shared_ptr<Signals> m_sender;
    const Sampler& m_sampler;
};
