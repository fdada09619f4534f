#include "Model/ProcessActions.h"

using namespace Qt::StringLiterals;

ProcessActions::ProcessActions(const Platform& platform, const PublishedState& state, const Sampler& sampler,
                               const ServerWatch& servers, ActionLog& log)
    : m_platform(platform)
    , m_state(state)
    , m_sampler(sampler)
    , m_servers(servers)
    , m_log(log)
    , m_gate(platform.signalSender, sampler) {}

void ProcessActions::quitProcess(const ProcSample& chosen) {
    signalChosen(chosen, false);
}

void ProcessActions::forceKillProcess(const ProcSample& chosen) {
    signalChosen(chosen, true);
}

void ProcessActions::signalChosen(const ProcSample& chosen, bool force) {
    const ProcSample* current = m_state.process(chosen.pid);
    const bool isStillThere = current && current->startTime == chosen.startTime;
    const qint32 pid = chosen.pid; // an observer may replace the list that `chosen` is part of
    const bool delivered = isStillThere && m_gate.signalAll({pid}, force) == 1;
    m_log.record(force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit,
                 u"pid="_s + QString::number(pid), 0, delivered);
}
