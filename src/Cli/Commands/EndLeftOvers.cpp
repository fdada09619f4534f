#include "AppModel.h"
#include "Cli/Commands.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/SessionEnd.h"

using namespace Qt::StringLiterals;

namespace {

ExitStatus runEndLeftOvers(Run& run) {
    AppModel& model = *QCoro::waitFor(run.machine.lookForSessions());
    return SessionEnd::run(run, u"end-leftovers"_s, model,
                           model.actions().endingOf(model.sessionReport().leftOvers));
}

} // namespace

Command Commands::endLeftOvers() {
    return {.name = u"end-leftovers"_s,
            .summary = u"Ends what ended sessions have left running"_s,
            .options = Confirmation::options(),
            .run = runEndLeftOvers};
}
