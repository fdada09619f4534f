#include "AppModel.h"
#include "Cli/Commands.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Cli/SessionEnd.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Returns whether the text names the session: by its id, or by the PID alone.
bool isNamed(const Session& session, const QString& text) {
    return Report::sessionId(session.host) == text || QString::number(session.host.pid) == text;
}

ExitStatus runEndSession(Run& run) {
    const QString id = run.arguments.constFirst();
    AppModel& model = *QCoro::waitFor(run.machine.lookForSessions());
    const QList<Session> sessions = model.sessionReport().sessions;
    const auto session =
        std::ranges::find_if(sessions, [&id](const Session& each) { return isNamed(each, id); });
    if (session == sessions.end()) {
        run.output.complain(u"no session '%1' (see tavrinctl sessions)"_s.arg(id));
        return ExitStatus::notDone;
    }
    return SessionEnd::run(run, u"end-session"_s, model, model.actions().endingOf(*session));
}

} // namespace

Command Commands::endSession() {
    return {.name = u"end-session"_s,
            .arguments = u"ID"_s,
            .summary = u"Ends a session with all that it started"_s,
            .options = Confirmation::options(),
            .minArguments = 1,
            .maxArguments = 1,
            .run = runEndSession};
}
