#include "AppModel.h"
#include "Cli/Actions.h"
#include "Cli/Commands.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Core/Formatters.h"
#include "Core/Report/ReportParts.h"
#include "Platform/TerminationRequest.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int maxTargets = 100;

/// Returns the named targets, or what is wrong with the names.
Result<QList<CacheTarget>> targetsOf(const QList<CacheTarget>& all, const QStringList& names) {
    Result<QList<CacheTarget>> result{Outcome::success()};
    for (const QString& name : names) {
        const auto found = std::ranges::find_if(all, [&name](const CacheTarget& target) {
            return target.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (found == all.end())
            return {Outcome::failure(u"no target '%1' (see tavrinctl caches)"_s.arg(name))};
        if (!result.value.contains(*found))
            result.value.append(*found);
    }
    return result;
}

QString targetsText(const QList<CacheTarget>& targets) {
    QString text;
    for (const CacheTarget& target : targets) {
        text += Table::safe(target.name) + u"  "_s + Formatters::bytes(target.sizeBytes) + u'\n';
        for (const CacheEntry& place : target.details)
            text += u"  "_s + Formatters::bytes(place.sizeBytes) + u"  "_s + Table::safe(place.path) + u'\n';
        for (const QString& note : target.notes)
            text += u"  "_s + Table::safe(note) + u'\n';
        if (!target.volumes)
            text += u"  volumes, unknown which, with their contents\n"_s;
        for (const QString& volume : target.volumes.value_or(QStringList()))
            text += u"  volume "_s + Table::safe(volume) + u", with its contents\n"_s;
        if (target.pruneCommand)
            text += u"  by: "_s + Table::safe(*target.pruneCommand) + u'\n';
        if (target.rule.hasUserFiles)
            text += u"  These are files of yours. They are gone for good.\n"_s;
    }
    return text;
}

QJsonObject withReport(QJsonObject document, const CleanupReport& report) {
    document.insert(u"done"_s, true);
    document.insert(u"cleaned_count"_s, report.cleaned);
    document.insert(u"freed_bytes"_s, ReportParts::number(report.freedBytes));
    document.insert(u"was_cancelled"_s, report.wasCancelled);
    document.insert(u"failures"_s, ReportParts::arrayOf(report.failures, [](const CleanupFailure& failure) {
                        return QJsonObject{{u"name"_s, failure.target}, {u"reason"_s, failure.reason}};
                    }));
    return document;
}

QString reportText(const CleanupReport& report) {
    QString text = u"Freed %1.\n"_s.arg(Formatters::bytes(report.freedBytes));
    for (const CleanupFailure& failure : report.failures)
        text += Table::safe(u"%1 was not cleaned. %2"_s.arg(failure.target, failure.reason)) + u'\n';
    return text;
}

/// On Ctrl+C what is not cleaned yet stays.
CleanupReport act(CacheCleanup& cleanup, const QList<CacheTarget>& targets) {
    const TerminationRequest termination;
    QObject::connect(&termination, &TerminationRequest::received, &cleanup, [&cleanup] { cleanup.cancel(); });
    if (targets.size() == 1)
        QCoro::waitFor(cleanup.clean(targets.constFirst()));
    else
        QCoro::waitFor(cleanup.cleanAll(targets));
    return cleanup.report();
}

ExitStatus runClean(Run& run) {
    CacheCleanup& cleanup = run.machine.model().cleanup();
    const auto known = targetsOf(cleanup.targets(), run.arguments);
    if (!known.done) {
        run.output.complain(known.reason);
        return ExitStatus::notDone;
    }
    QCoro::waitFor(cleanup.rescan());
    QList<CacheTarget> targets = targetsOf(cleanup.targets(), run.arguments).value;
    const auto unknown =
        std::ranges::find_if(targets, [](const CacheTarget& target) { return !target.lastScanned; });
    if (unknown != targets.end()) {
        run.output.complain(u"%1 could not be measured. %2"_s.arg(unknown->name, unknown->notes.join(u' ')));
        return ExitStatus::notDone;
    }
    targets.removeIf([](const CacheTarget& target) { return target.sizeBytes == 0; });
    QJsonObject document = Actions::head(u"clean"_s, run.machine.origin());
    document.insert(u"targets"_s, ReportParts::arrayOf(targets, Report::target));
    const Confirmation::Plan plan = {.document = document,
                                     .text = targets.isEmpty() ? u"There is nothing to clean.\n"_s
                                                               : targetsText(targets),
                                     .question = u"Clean this?"_s,
                                     .isEmpty = targets.isEmpty()};
    if (const auto end = Confirmation::settle(run, plan))
        return *end;
    const CleanupReport report = act(cleanup, targets);
    run.output.print(withReport(document, report),
                     [&report](const QJsonObject&) { return reportText(report); });
    return report.failures.isEmpty() && !report.wasCancelled ? ExitStatus::done : ExitStatus::notDone;
}

} // namespace

Command Commands::clean() {
    return {.name = u"clean"_s,
            .arguments = u"TARGET..."_s,
            .summary = u"Cleans the targets that are named, see tavrinctl caches"_s,
            .options = Confirmation::options(),
            .minArguments = 1,
            .maxArguments = maxTargets,
            .run = runClean};
}
