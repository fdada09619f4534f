#pragma once

#include "Platform/Signals.h"

#include <QHash>
#include <QList>

/// Scripted processes. Like the kernel it tells apart two processes that had the same id one after the
/// other; every signal is on record.
class FakeSignals : public Signals, public std::enable_shared_from_this<FakeSignals> {
public:
    struct Script {
        SignalResult terminate = SignalResult::delivered;
        SignalResult kill = SignalResult::delivered;
        SignalResult probe = SignalResult::delivered;
        bool endsOnTerminate = false;
    };
    struct Sent {
        qint32 pid = 0;
        Signal signal = Signal::probe;
        int life = 0; ///< 1 for the first process with that id, 2 for the next

        bool operator==(const Sent&) const = default;
    };

    void start(qint32 pid, const Script& script);
    void start(qint32 pid) { start(pid, Script()); }
    void end(qint32 pid);
    /// Every signal that reached a process, or was refused by one, probes left out.
    const QList<Sent>& sent() const { return m_sent; }

    std::shared_ptr<ProcessHandle> hold(qint32 pid) override;

private:
    class Handle;
    struct Process {
        Script script;
        int life = 0;
        bool running = false;
    };

    SignalResult sendTo(qint32 pid, int life, Signal signal);

    QHash<qint32, Process> m_processes;
    QList<Sent> m_sent;
};
