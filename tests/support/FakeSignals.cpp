#include "support/FakeSignals.h"

#include <utility>

class FakeSignals::Handle : public ProcessHandle {
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

void FakeSignals::start(qint32 pid, const Script& script) {
    Process& process = m_processes[pid];
    process.script = script;
    process.running = true;
    ++process.life;
}

void FakeSignals::end(qint32 pid) {
    m_processes[pid].running = false;
}

std::shared_ptr<ProcessHandle> FakeSignals::hold(qint32 pid) {
    const Process process = m_processes.value(pid);
    return std::make_shared<Handle>(shared_from_this(), pid, process.running ? process.life : 0);
}

SignalResult FakeSignals::sendTo(qint32 pid, int life, Signal signal) {
    const auto process = m_processes.find(pid);
    if (process == m_processes.end() || !process->running || process->life != life)
        return SignalResult::noSuchProcess;
    if (signal == Signal::probe)
        return process->script.probe;
    m_sent.append({.pid = pid, .signal = signal, .life = life});
    const SignalResult result = signal == Signal::kill ? process->script.kill : process->script.terminate;
    if (result == SignalResult::delivered && (signal == Signal::kill || process->script.endsOnTerminate))
        process->running = false;
    return result;
}
