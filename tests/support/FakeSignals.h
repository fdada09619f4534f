#pragma once

#include "Platform/Signals.h"

#include <QHash>
#include <QList>

/// Scripted processes. Tells apart processes that had the same PID one after the other, and records every
/// signal.
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
        int life = 0; ///< 1 for the first process with that PID, 2 for the next

        bool operator==(const Sent&) const = default;
    };

    void start(qint32 pid, const Script& script) {
        m_processes[pid] = {.script = script, .life = m_processes[pid].life + 1, .running = true};
    }
    void start(qint32 pid) { start(pid, Script()); }
    void end(qint32 pid) { m_processes[pid].running = false; }
    /// Returns every signal to a running process, without probes.
    const QList<Sent>& sent() const { return m_sent; }

    std::shared_ptr<ProcessHandle> hold(qint32 pid) override {
        const Process process = m_processes.value(pid);
        return std::make_shared<Handle>(shared_from_this(), pid, process.running ? process.life : 0);
    }

private:
    class Handle : public ProcessHandle {
    public:
        Handle(std::shared_ptr<FakeSignals> owner, qint32 pid, int life)
            : m_owner(std::move(owner))
            , m_pid(pid)
            , m_life(life) {}

        SignalResult send(Signal signal) override { return m_owner->sendTo(m_pid, m_life, signal); }

    private:
        std::shared_ptr<FakeSignals> m_owner;
        qint32 m_pid;
        int m_life;
    };
    struct Process {
        Script script;
        int life = 0;
        bool running = false;
    };

    SignalResult sendTo(qint32 pid, int life, Signal signal) {
        const auto process = m_processes.find(pid);
        if (process == m_processes.end() || !process->running || process->life != life)
            return SignalResult::noSuchProcess;
        if (signal == Signal::probe)
            return process->script.probe;
        m_sent.append({.pid = pid, .signal = signal, .life = life});
        const SignalResult result = signal == Signal::kill ? process->script.kill : process->script.terminate;
        const bool isEnd =
            signal == Signal::kill || (signal == Signal::terminate && process->script.endsOnTerminate);
        if (result == SignalResult::delivered && isEnd)
            process->running = false;
        return result;
    }

    QHash<qint32, Process> m_processes;
    QList<Sent> m_sent;
};
