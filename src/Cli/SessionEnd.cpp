#include "Cli/SessionEnd.h"

#include "AppModel.h"
#include "Cli/Actions.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Core/Formatters.h"
#include "Core/Report/ReportParts.h"

using namespace Qt::StringLiterals;

namespace {

QString outcomeOf(const SessionEndResult::Record& record) {
    return record.outcome ? rawValue(*record.outcome) : u"left_alone"_s;
}

QJsonObject withResult(QJsonObject document, const SessionEndResult& result) {
    document.insert(u"done"_s, true);
    document.insert(u"results"_s, ReportParts::arrayOf(result.records, [](const auto& record) {
                        return QJsonObject{{u"pid"_s, record.pid},
                                           {u"name"_s, record.name},
                                           {u"outcome"_s, outcomeOf(record)}};
                    }));
    document.insert(u"freed_bytes"_s, ReportParts::number(result.freedBytes));
    document.insert(u"freed_swap_bytes"_s, ReportParts::number(result.freedSwapBytes));
    return document;
}

QString resultText(const SessionEndResult& result) {
    QString text = u"Ended %1 of %2. Freed %3 of memory and %4 of swap.\n"_s.arg(result.endedCount())
                       .arg(result.records.size())
                       .arg(Formatters::bytes(result.freedBytes), Formatters::bytes(result.freedSwapBytes));
    if (!result.resumeCommand.isEmpty())
        text += Table::safe(u"The conversation goes on with: "_s + result.resumeCommand) + u'\n';
    return text;
}

} // namespace

ExitStatus SessionEnd::run(Run& run, const QString& command, AppModel& model, const SessionEnding& ending) {
    QJsonObject document = Actions::head(command, run.machine.origin());
    document.insert(u"title"_s, ending.title);
    document.insert(u"processes"_s, Actions::list(ending.processes, run.machine.origin()));
    document.insert(u"gives_back"_s, Report::memoryReturn(ending.givesBack));
    const bool isEmpty = ending.processes.isEmpty();
    const Confirmation::Plan plan = {.document = document,
                                     .text = isEmpty
                                                 ? u"Nothing was left.\n"_s
                                                 : Table::safe(ending.title) + u'\n' +
                                                       Actions::text(ending.processes, run.output.style()) +
                                                       Actions::text(ending.givesBack),
                                     .question = u"End these processes?"_s,
                                     .isEmpty = isEmpty};
    if (const auto end = Confirmation::settle(run, plan))
        return *end;
    model.sampleMachine(); // what changed before the answer was not freed
    const SessionEndResult result = QCoro::waitFor(model.actions().endSession(ending));
    run.output.print(withResult(document, result),
                     [&result](const QJsonObject&) { return resultText(result); });
    return result.endedCount() == result.records.size() ? ExitStatus::done : ExitStatus::notDone;
}
