#include "Model/ProcessActions.h"

#include "Core/Memory/FreedMemory.h"
#include "Platform/Identity.h"
#include "Platform/Signals.h"

#include <QCoreApplication>
#include <QCoroTimer>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A process that is to end.
struct Target {
    ProcSample process;
    std::shared_ptr<ProcessHandle> handle;
    std::optional<KillOutcome> outcome;
    bool isDone = false;
};
using Targets = QList<Target>;

void settle(Target& target, std::optional<KillOutcome> outcome) {
    target.outcome = outcome;
    target.isDone = true;
}

void settleEnded(Targets& targets) {
    for (Target& target : targets) {
        if (!target.isDone && hasEnded(*target.handle))
            settle(target, KillOutcome::quit);
    }
}

void ask(Target& target) {
    const KillOutcome outcome = askToEnd(*target.handle);
    if (outcome == KillOutcome::denied)
        settle(target, outcome);
}

SessionEndResult resultOf(const SessionEnding& ending, const Targets& targets) {
    SessionEndResult result{
        .title = ending.title, .promised = ending.givesBack, .resumeCommand = ending.resumeCommand};
    for (const Target& target : targets)
        result.records.append(
            {.pid = target.process.pid, .name = target.process.name, .outcome = target.outcome});
    return result;
}

QString logDetail(const SessionEndResult& result) {
    const auto forced =
        std::ranges::count(result.records, KillOutcome::forced, &SessionEndResult::Record::outcome);
    return u"[session] "_s + result.title +
           u" — ended=%1/%2 forced=%3 freed=%4"_s.arg(result.endedCount())
               .arg(result.records.size())
               .arg(forced)
               .arg(result.freedBytes);
}

/// Waits until the first `count` targets have ended, at most for `limit`.
QCoro::Task<> waitForEnds(std::shared_ptr<Targets> targets, qsizetype count, std::chrono::milliseconds limit,
                          std::chrono::milliseconds step) {
    for (auto waited = std::chrono::milliseconds(); waited < limit; waited += step) {
        settleEnded(*targets);
        if (std::all_of(targets->begin(), targets->begin() + count,
                        [](const Target& each) { return each.isDone; }))
            co_return;
        co_await QCoro::sleepFor(step);
    }
}

QList<SessionProcess> joined(const auto& parts, auto member) {
    QList<SessionProcess> processes;
    for (const auto& part : parts)
        processes += part.*member;
    return processes;
}

} // namespace

SessionEnding ProcessActions::endingOf(const QString& title, const QList<SessionProcess>& processes) const {
    SessionEnding ending{.title = title};
    QList<qint32> pids;
    for (const SessionProcess& each : processes) {
        ending.processes.append(each.process);
        pids.append(each.process.pid);
    }
    ending.givesBack = givesBack(pids);
    return ending;
}

SessionEnding ProcessActions::endingOf(const Session& session) const {
    SessionEnding ending = endingOf(session.titleForLog(), session.processes);
    ending.host = session.host;
    ending.owners = {session.host};
    ending.resumeCommand = session.resumeCommand;
    return ending;
}

SessionEnding ProcessActions::endingOf(const QList<LeftOver>& leftOvers) const {
    return endingOf(u"left-overs"_s, joined(leftOvers, &LeftOver::processes));
}

SessionEnding ProcessActions::endingOf(const QList<DuplicateServers>& duplicates) const {
    SessionEnding ending = endingOf(u"duplicates"_s, joined(duplicates, &DuplicateServers::older));
    for (const DuplicateServers& each : duplicates)
        ending.owners.append(each.host);
    return ending;
}

/// Looks at a process again right before its signal: it is the user's, and no other session that runs has it
/// by now.
bool ProcessActions::mayEnd(const ProcSample& process, const SessionEnding& ending) const {
    const auto again = m_sampler.lookAgain(process);
    if (!again || again->uid != m_platform.identity->userId() ||
        process.pid == m_platform.identity->processId())
        return false;
    return std::ranges::none_of(m_state.sessions.sessions, [&](const Session& session) {
        return !ending.owners.contains(session.host) &&
               std::ranges::any_of(session.processes, [&](const SessionProcess& each) {
                   return each.process.identity() == process.identity();
               });
    });
}

QCoro::Task<SessionEndResult> ProcessActions::endSession(SessionEnding ending) {
    const QPointer<ProcessActions> self(this);
    const SystemSample before = m_state.systemSample;
    const SessionDelays delays = m_sessionDelays;
    const auto targets = std::make_shared<Targets>();
    for (const ProcSample& process : ending.processes)
        targets->append({.process = process, .handle = m_gate.hold(process.pid)});
    const auto signalLeft = [&](auto signal) {
        settleEnded(*targets);
        for (Target& target : *targets) {
            if (!target.isDone && mayEnd(target.process, ending))
                signal(target);
            else if (!target.isDone)
                settle(target, std::nullopt);
        }
    };
    if (ending.host && !targets->isEmpty()) {
        if (mayEnd(targets->first().process, ending))
            ask(targets->first());
        m_paused.resume(*ending.host); // else it does not hear
        auto saving = waitForEnds(targets, 1, delays.forHost, delays.betweenLooks);
        co_await saving;
        if (!self)
            co_return resultOf(ending, *targets);
    }
    signalLeft(ask);
    auto waiting = waitForEnds(targets, targets->size(), delays.forOthers, delays.betweenLooks);
    co_await waiting;
    if (!self)
        co_return resultOf(ending, *targets);
    signalLeft([](Target& target) { settle(target, killIfPresent(*target.handle)); });
    co_await QCoro::sleepFor(delays.beforeMeasuring);
    SessionEndResult result = resultOf(ending, *targets);
    if (!self)
        co_return result;
    const FreedMemory freed = FreedMemory::between(before, Sampler(m_platform).sample());
    result.freedBytes = freed.memoryBytes;
    result.freedSwapBytes = freed.swapBytes;
    const QString detail = logDetail(result);
    m_log.record(ActionLogEntry::Kind::quit, detail, result.freedBytes, true);
    co_return result;
}

Outcome ProcessActions::pauseSession(const Session& session) {
    QList<PausedSessions::Process> processes;
    const SessionEnding pausing = endingOf(session);
    for (const ProcSample& process : pausing.processes) {
        auto handle = m_gate.hold(process.pid);
        if (mayEnd(process, pausing))
            processes.append({.pid = process.pid, .handle = std::move(handle)});
    }
    const qsizetype stopped = m_paused.pause(session.host, processes);
    const bool done = stopped > 0;
    m_log.record(ActionLogEntry::Kind::quit,
                 u"[session] "_s + session.titleForLog() +
                     u" — paused=%1/%2"_s.arg(stopped).arg(session.processes.size()),
                 0, done);
    return done ? Outcome::success()
                : Outcome::failure(QCoreApplication::translate("ProcessActions",
                                                               "No process of the session could be paused."));
}

Outcome ProcessActions::resumeSession(const Session& session) {
    const qsizetype resumed = m_paused.resume(session.host);
    const bool done = resumed > 0;
    m_log.record(ActionLogEntry::Kind::quit,
                 u"[session] "_s + session.titleForLog() + u" — resumed=%1"_s.arg(resumed), 0, done);
    return done ? Outcome::success()
                : Outcome::failure(
                      QCoreApplication::translate("ProcessActions", "The session has ended meanwhile."));
}
