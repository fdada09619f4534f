#include "AppModel.h"
#include "Cli/Actions.h"
#include "Cli/Commands.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Core/Formatters.h"
#include "Core/Report/ReportParts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

/// Those that the Free RAM sheet begins with: minutes and MiB.
constexpr double usualIdleMin = 10;
constexpr double usualSizeMB = 300;

QList<qint32> pidsOf(const QList<FreeRamPreview>& candidates) {
    QList<qint32> pids;
    for (const FreeRamPreview& candidate : candidates)
        pids.append(candidate.pid);
    return pids;
}

QJsonObject withResult(QJsonObject document, const FreeRAMResult& result) {
    document.insert(u"done"_s, true);
    document.insert(
        u"results"_s, ReportParts::arrayOf(result.perPid, [](const FreeRAMResult::Record& record) {
            return QJsonObject{
                {u"pid"_s, record.pid}, {u"name"_s, record.name}, {u"outcome"_s, rawValue(record.outcome)}};
        }));
    document.insert(u"freed_bytes"_s, ReportParts::number(result.freedBytes));
    document.insert(u"freed_swap_bytes"_s, ReportParts::number(result.freedSwapBytes));
    return document;
}

QString resultText(const FreeRAMResult& result) {
    QString text;
    for (const FreeRAMResult::Record& record : result.perPid)
        text +=
            Table::safe(u"%1 %2: %3"_s.arg(record.pid).arg(record.name, rawValue(record.outcome))) + u'\n';
    return text + u"Freed %1 of memory and %2 of swap.\n"_s.arg(Formatters::bytes(result.freedBytes),
                                                                Formatters::bytes(result.freedSwapBytes));
}

bool hasEnded(const FreeRAMResult::Record& record) {
    return record.outcome == KillOutcome::quit || record.outcome == KillOutcome::forced;
}

ExitStatus runFree(Run& run) {
    const auto minIdle = Actions::number(run.options, u"min-idle"_s, usualIdleMin);
    const auto minSize = Actions::number(run.options, u"min-mb"_s, usualSizeMB);
    if (!minIdle || !minSize) {
        run.output.complain(u"free: --min-idle takes minutes, --min-mb takes MiB"_s);
        return ExitStatus::misuse;
    }
    AppModel& model = *QCoro::waitFor(run.machine.look());
    if (*minIdle > 0 && !run.machine.knowsIdleTimes()) {
        run.output.complain(
            u"free: only a Tavrin that runs knows what is idle; start it, or say --min-idle 0"_s);
        return ExitStatus::notDone;
    }
    const auto candidates = model.actions().freeRamCandidates(*minIdle, *minSize);
    const QList<ProcSample> processes = Actions::samples(model, pidsOf(candidates));
    const MemoryReturn givesBack = model.actions().givesBack(pidsOf(candidates));
    QJsonObject document = Actions::head(u"free"_s, run.machine.origin());
    document.insert(u"processes"_s, Actions::list(processes, run.machine.origin()));
    document.insert(u"gives_back"_s, Report::memoryReturn(givesBack));
    const Confirmation::Plan plan = {.document = document,
                                     .text = candidates.isEmpty()
                                                 ? u"No process is idle and large enough.\n"_s
                                                 : Actions::text(processes, run.output.style()) +
                                                       Actions::text(givesBack),
                                     .question = u"End these processes?"_s,
                                     .isEmpty = candidates.isEmpty()};
    if (const auto end = Confirmation::settle(run, plan))
        return *end;
    model.sampleMachine(); // what changed before the answer was not freed
    const FreeRAMResult result = QCoro::waitFor(model.actions().freeRAM(pidsOf(candidates)));
    run.output.print(withResult(document, result),
                     [&result](const QJsonObject&) { return resultText(result); });
    return std::ranges::all_of(result.perPid, hasEnded) ? ExitStatus::done : ExitStatus::notDone;
}

} // namespace

Command Commands::free() {
    return {.name = u"free"_s,
            .summary = u"Ends idle processes that hold much memory"_s,
            .options =
                QList<QCommandLineOption>{{u"min-idle"_s, u"idle for so many minutes; else 10"_s, u"MIN"_s},
                                          {u"min-mb"_s, u"of so many MiB; else 300"_s, u"MB"_s}} +
                Confirmation::options(),
            .run = runFree};
}
