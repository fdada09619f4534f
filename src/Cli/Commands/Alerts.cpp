#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Cli/SeverityText.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

ExitStatus runAlerts(Run& run) {
    const QJsonObject document = QCoro::waitFor(run.machine.report(Report::Kind::alerts));
    const QJsonArray alerts = document.value(u"alerts"_s).toArray();
    run.output.print(document, [&](const QJsonObject&) {
        return alerts.isEmpty() ? u"No alerts.\n"_s : SeverityText::lines(alerts, run.output.style());
    });
    const bool tells = run.options.isSet(u"exit-code"_s) && !alerts.isEmpty();
    return tells ? ExitStatus::notDone : ExitStatus::done;
}

} // namespace

Command Commands::alerts() {
    return {.name = u"alerts"_s,
            .summary = u"Shows the alerts in force"_s,
            .options = {{u"exit-code"_s, u"exit with 1 while an alert is in force"_s}},
            .run = runAlerts};
}
