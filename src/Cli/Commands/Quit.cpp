#include "AppModel.h"
#include "Cli/Actions.h"
#include "Cli/Commands.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Core/Sampling/ProcessFilter.h"
#include "Platform/Identity.h"

using namespace Qt::StringLiterals;

namespace {

/// What is asked to quit: one process, or all of an application or of a name.
struct Aim {
    NukePreview preview;
    QList<ProcSample> processes;
    bool isOneProcess = false;
};

Aim aimAtApplication(const AppModel& model, const QString& application) {
    const NukePreview preview = model.actions().previewForApplication(application);
    return {.preview = preview, .processes = Actions::samples(model, preview.pids) + preview.inTerminals};
}

/// Aims at the user's processes of the name, or at the application that all of them belong to.
Aim aimAtName(const AppModel& model, const ProcessFilter& filter, const QString& name) {
    QList<ProcSample> mine;
    for (const ProcSample& process : model.processes()) {
        if (process.name == name && filter.accepts(process))
            mine.append(process);
    }
    const auto application = model.actions().applicationOf(mine);
    return application ? aimAtApplication(model, *application)
                       : Aim{.preview = NukePreview::make(name, mine), .processes = mine};
}

Aim aimAt(const AppModel& model, const Environment& environment, const QString& name) {
    const ProcessFilter filter(*environment.platform.identity);
    bool isPid = false;
    const qint32 pid = name.toInt(&isPid);
    if (isPid) {
        const ProcSample* process = model.process(pid);
        return process && filter.accepts(*process) ? Aim{.processes = {*process}, .isOneProcess = true}
                                                   : Aim();
    }
    const Aim application = aimAtApplication(model, name);
    return application.processes.isEmpty() ? aimAtName(model, filter, name) : application;
}

struct Told {
    QString text;
    bool isDelivered = false;
};

Told act(AppModel& model, const Aim& aim) {
    const auto wasLogged = [&model] { return model.actionLog().entries().constFirst().success; };
    if (aim.isOneProcess) {
        const ProcSample& process = aim.processes.constFirst();
        model.actions().quitProcess(process);
        const bool done = wasLogged();
        return {u"%1 was%2 asked to quit."_s.arg(process.name, done ? QString() : u" not"_s), done};
    }
    if (const auto application = aim.preview.parentAppName) {
        const QString text =
            QCoro::waitFor(model.actions().nukeGracefulApp(aim.preview, *application, false));
        return {text, wasLogged()};
    }
    const int killed = model.actions().nuke(aim.preview);
    return {aim.preview.killOutcome(killed), killed == aim.preview.pids.size()};
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
    const Told told = act(model, aim);
    document.insert(u"done"_s, true);
    document.insert(u"is_delivered"_s, told.isDelivered);
    run.output.print(document, [&told](const QJsonObject&) { return Table::safe(told.text) + u'\n'; });
    return told.isDelivered ? ExitStatus::done : ExitStatus::notDone;
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
