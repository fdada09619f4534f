#include "AppModel.h"

#include "Platform/Signals.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const ProcSample* AppModel::process(qint32 pid) const {
    const auto found = std::ranges::find(m_processes, pid, &ProcSample::pid);
    return found == m_processes.end() ? nullptr : &*found;
}

void AppModel::quitProcess(const ProcSample& chosen) {
    signalChosen(chosen, false);
}

void AppModel::forceKillProcess(const ProcSample& chosen) {
    signalChosen(chosen, true);
}

void AppModel::signalChosen(const ProcSample& chosen, bool force) {
    const ProcSample* current = process(chosen.pid);
    const bool isStillThere = current && current->startTime == chosen.startTime;
    const qint32 pid = chosen.pid; // `chosen` may be an element of the list that observers replace
    const bool delivered = isStillThere && signalAll({pid}, force) == 1;
    record(force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit,
           u"pid="_s + QString::number(pid), 0, delivered);
}

std::shared_ptr<ProcessHandle> AppModel::hold(qint32 pid) const {
    constexpr qint32 nobody = 0;
    const auto handle = m_platform.signalSender->hold(pid);
    // Asked only now: the handle stays with whoever had the id when it was taken.
    return m_sampler.isReplaced(pid) ? m_platform.signalSender->hold(nobody) : handle;
}

int AppModel::signalAll(const QList<qint32>& pids, bool force) {
    const Signal signal = force ? Signal::kill : Signal::terminate;
    return static_cast<int>(std::count_if(pids.begin(), pids.end(), [this, signal](qint32 pid) {
        return hold(pid)->send(signal) == SignalResult::delivered;
    }));
}
