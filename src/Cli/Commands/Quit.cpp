#include "AppModel.h"
#include "Cli/Actions.h"
#include "Cli/Commands.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Core/Sampling/ProcessFilter.h"

using namespace Qt::StringLiterals;

namespace {

/// What is asked to quit: one process, or all of an application or of a name.
struct Aim {
    NukePreview preview;
    QList<ProcSample> processes;
    bool isOneProcess = false;
};

QList<ProcSample> samplesOf(const AppModel& model, const NukePreview& preview) {
    QList<ProcSample> processes;
    for (const qint32 pid : preview.pids) {
        if (const ProcSample* process = model.process(pid))
            processes.append(*process);
    }
    return processes;
}

Aim aimAt(const AppModel& model, const Environment& environment, const QString& name) {
    bool isPid = false;
    const qint32 pid = name.toInt(&isPid);
    const ProcSample* process = isPid ? model.process(pid) : nullptr;
    if (process && ProcessFilter(*environment.platform.identity).accepts(*process))
        return {.processes = {*process}, .isOneProcess = true};
    if (isPid)
        return {};
    NukePreview preview = model.actions().previewForApplication(name);
    if (preview.pids.isEmpty())
        preview = model.actions().previewForName(name);
    return {.preview = preview, .processes = samplesOf(model, preview)};
}

/// Returns the outcome in words. Whether it succeeded is in the log.
QString act(AppModel& model, const Aim& aim) {
    if (aim.isOneProcess) {
        model.actions().quitProcess(aim.processes.constFirst());
        return aim.processes.constFirst().name;
    }
    const auto application = aim.preview.parentAppName;
    if (!application)
        return model.actions().nuke(aim.preview);
    return QCoro::waitFor(model.actions().nukeGracefulApp(aim.preview, *application, false));
}

ExitStatus runQuit(Run& run) {
    const QString name = run.arguments.constFirst();
    AppModel& model = *QCoro::waitFor(run.machine.look());
    const Aim aim = aimAt(model, run.environment, name);
    if (aim.processes.isEmpty()) {
        run.output.complain(u"no process or application '%1' of yours"_s.arg(name));
        return ExitStatus::notDone;
    }
    QJsonObject document = Actions::head(u"quit"_s, run.machine.origin());
    document.insert(u"processes"_s, Actions::list(aim.processes, run.machine.origin()));
    const Confirmation::Plan plan = {.document = document,
                                     .text = Actions::text(aim.processes, run.output.style()),
                                     .question = u"Ask these processes to quit?"_s};
    if (const auto end = Confirmation::settle(run, plan))
        return *end;
    const QString outcome = act(model, aim);
    const bool isDelivered = model.actionLog().entries().constFirst().success;
    document.insert(u"done"_s, true);
    document.insert(u"is_delivered"_s, isDelivered);
    run.output.print(document, [&](const QJsonObject&) {
        const QString said =
            aim.isOneProcess ? u"%1 was%2 asked to quit."_s.arg(outcome, isDelivered ? QString() : u" not"_s)
                             : outcome;
        return Table::safe(said) + u'\n';
    });
    return isDelivered ? ExitStatus::done : ExitStatus::notDone;
}

} // namespace

Command Commands::quit() {
    return {.name = u"quit"_s,
            .arguments = u"PID|NAME"_s,
            .summary = u"Asks a process, or an application with all its helpers, to quit"_s,
            .options = Confirmation::options(),
            .minArguments = 1,
            .maxArguments = 1,
            .run = runQuit};
}
