#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Cli/SessionRows.h"

using namespace Qt::StringLiterals;

namespace {

ExitStatus runSessions(Run& run) {
    const QJsonObject document = QCoro::waitFor(run.machine.report(Report::Kind::sessions));
    run.output.print(document,
                     [&run](const QJsonObject& each) { return SessionRows::text(each, run.output.style()); });
    return ExitStatus::done;
}

} // namespace

Command Commands::sessions() {
    return {.name = u"sessions"_s,
            .summary = u"Shows the sessions of coding agents and what ended ones left"_s,
            .run = runSessions};
}
