#include "Model/ProcessActions.h"

SessionEnding ProcessActions::endingOf(const Session&) const {
    return {};
}

SessionEnding ProcessActions::endingOf(const QList<LeftOver>&) const {
    return {};
}

SessionEnding ProcessActions::endingOf(const QList<DuplicateServers>&) const {
    return {};
}

QCoro::Task<SessionEndResult> ProcessActions::endSession(SessionEnding) {
    co_return {};
}

Outcome ProcessActions::pauseSession(const Session&) {
    return {};
}

Outcome ProcessActions::resumeSession(const Session&) {
    return {};
}
