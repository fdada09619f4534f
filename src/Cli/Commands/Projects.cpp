#include "AppModel.h"
#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Preferences.h"

using namespace Qt::StringLiterals;

namespace {

QString projectsText(const QJsonObject& document, const TableStyle& style) {
    const QJsonArray projects = document.value(u"projects"_s).toArray();
    if (projects.isEmpty())
        return u"No project has leftovers of builds.\n"_s;
    return Table::of({Column::ofBytes(u"SIZE"_s, u"size_bytes"_s),
                      Column::ofTime(u"LAST USED"_s, u"last_use_at"_s, 2),
                      Column::ofText(u"PROJECT"_s, u"path"_s)},
                     projects, style);
}

ExitStatus runProjects(Run& run) {
    ProjectLeftovers& leftovers = run.machine.model().projectLeftovers();
    QCoro::waitFor(leftovers.search(run.environment.preferences.projectFolders()));
    const QString failure = leftovers.searchFailure();
    const QJsonObject document = Report::projects(run.machine.origin(), leftovers.projects(), failure);
    run.output.print(document,
                     [&run](const QJsonObject& each) { return projectsText(each, run.output.style()); });
    if (!failure.isEmpty())
        run.output.complain(failure);
    return failure.isEmpty() ? ExitStatus::done : ExitStatus::notDone;
}

} // namespace

Command Commands::projects() {
    return {.name = u"projects"_s,
            .summary = u"Looks for what builds have left in projects, which may take a minute"_s,
            .run = runProjects};
}
