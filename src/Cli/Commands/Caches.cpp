#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Cli/Scan.h"

#include <QCommandLineParser>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString cachesText(const QJsonObject& document, const TableStyle& style) {
    const QJsonArray targets = document.value(u"targets"_s).toArray();
    QString text =
        Table::of({Column::ofBytes(u"SIZE"_s, u"size_bytes"_s), Column::ofText(u"TARGET"_s, u"name"_s)},
                  targets, style);
    const bool isScanned = std::ranges::any_of(
        targets, [](const QJsonValue& target) { return !target.toObject().value(u"size_bytes"_s).isNull(); });
    return isScanned ? text : text + u"\nNothing is measured yet: tavrinctl caches --scan\n"_s;
}

ExitStatus runCaches(Run& run) {
    const bool scans = run.options.isSet(u"scan"_s);
    const QJsonObject document =
        QCoro::waitFor(scans ? Scan::caches(run.machine) : run.machine.report(Report::Kind::caches));
    run.output.print(document,
                     [&run](const QJsonObject& each) { return cachesText(each, run.output.style()); });
    return ExitStatus::done;
}

} // namespace

Command Commands::caches() {
    return {.name = u"caches"_s,
            .summary = u"Shows what can be cleaned, as Tavrin measured it last"_s,
            .options = {{u"scan"_s, u"measure now, which may take a minute"_s}},
            .run = runCaches};
}
