#include "Cli/Actions.h"
#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Cli/ProcessRows.h"
#include "Core/Sampling/ProcessFilter.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString processesText(const QJsonObject& document, const TableStyle& style) {
    const QList<Column> columns = {Column::ofNumber(u"PID"_s, u"pid"_s),
                                   Column::ofBytes(u"RESIDENT"_s, u"rss_bytes"_s),
                                   Column::ofBytes(u"MEMORY"_s, u"memory_bytes"_s, 2),
                                   Column::ofBytes(u"SWAP"_s, u"swap_bytes"_s, 5),
                                   Column::ofPercent(u"CPU"_s, u"cpu_percent"_s, 1),
                                   Column::ofSeconds(u"IDLE"_s, u"idle_seconds"_s, 4),
                                   Column::ofText(u"GROUP"_s, u"group"_s, 3),
                                   ProcessRows::name(u"NAME"_s),
                                   Column::ofText(u"ARGUMENTS"_s, u"arguments"_s, 6)};
    return Table::of(columns, document.value(u"processes"_s).toArray(), style);
}

/// Returns what is wrong with the options, or an empty text.
QString objection(const QCommandLineParser& options) {
    const QString order = options.value(u"sort"_s);
    if (!order.isEmpty() && !ProcessRows::orders().contains(order))
        return u"no order '%1'; there are %2"_s.arg(order, ProcessRows::orders().join(u", "_s));
    const QString group = options.value(u"group"_s);
    if (!group.isEmpty() && !ProcessRows::groups().contains(group))
        return u"no group '%1'; there are %2"_s.arg(group, ProcessRows::groups().join(u", "_s));
    const auto mebibytes = Actions::number(options, u"min-mb"_s, 0);
    if (!mebibytes || !ProcessFilter::bytesFromMiB(*mebibytes))
        return u"'%1' is no size in MiB"_s.arg(options.value(u"min-mb"_s));
    return {};
}

ExitStatus runProcesses(Run& run) {
    if (const QString wrong = objection(run.options); !wrong.isEmpty()) {
        run.output.complain(u"processes: "_s + wrong);
        return ExitStatus::misuse;
    }
    QJsonObject document = QCoro::waitFor(run.machine.report(Report::Kind::processes));
    const ProcessRows::Choice choice = {
        .order = run.options.value(u"sort"_s),
        .group = run.options.value(u"group"_s),
        .minBytes = ProcessFilter::bytesFromMiB(run.options.value(u"min-mb"_s).toDouble()).value_or(0),
        .isTree = run.options.isSet(u"tree"_s)};
    document.insert(u"processes"_s, ProcessRows::chosen(document.value(u"processes"_s).toArray(), choice));
    run.output.print(document,
                     [&run](const QJsonObject& each) { return processesText(each, run.output.style()); });
    return ExitStatus::done;
}

} // namespace

Command Commands::processes() {
    return {.name = u"processes"_s,
            .summary = u"Lists the processes, the largest first"_s,
            .options = {{u"sort"_s, u"by "_s + ProcessRows::orders().join(u", "_s), u"ORDER"_s},
                        {u"group"_s, u"only "_s + ProcessRows::groups().join(u", "_s), u"GROUP"_s},
                        {u"min-mb"_s, u"only those of so many MiB"_s, u"N"_s},
                        {u"tree"_s, u"children below their parents"_s}},
            .run = runProcesses};
}
