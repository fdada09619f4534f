#include "Core/Relief/KillOutcome.h"

#include "Platform/Signals.h"

namespace {

KillOutcome outcomeOf(SignalResult result, KillOutcome delivered, KillOutcome gone) {
    switch (result) {
    case SignalResult::delivered:
        return delivered;
    case SignalResult::notPermitted:
        return KillOutcome::denied;
    case SignalResult::noSuchProcess:
        return gone;
    case SignalResult::other:
        break;
    }
    return KillOutcome::ignored;
}

} // namespace

KillOutcome askToEnd(ProcessHandle& process) {
    return outcomeOf(process.send(Signal::terminate), KillOutcome::quit, KillOutcome::ignored);
}

KillOutcome killIfPresent(ProcessHandle& process) {
    const SignalResult probed = process.send(Signal::probe); // where it fails as `other`, the process may run
    if (probed == SignalResult::noSuchProcess || probed == SignalResult::notPermitted)
        return KillOutcome::quit;
    return outcomeOf(process.send(Signal::kill), KillOutcome::forced, KillOutcome::quit);
}

bool hasEnded(ProcessHandle& process) {
    return process.send(Signal::probe) == SignalResult::noSuchProcess;
}
