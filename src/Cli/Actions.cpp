#include "Cli/Actions.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Core/Report/ReportParts.h"

#include <QCommandLineParser>

#include <cmath>

using namespace Qt::StringLiterals;

QJsonObject Actions::head(const QString& command, const Report::Origin& origin) {
    QJsonObject document = Report::head(Report::Kind::status, origin);
    document.insert(u"kind"_s, command);
    return document;
}

QJsonArray Actions::list(const QList<ProcSample>& processes, const Report::Origin& origin) {
    return ReportParts::arrayOf(processes,
                                [&origin](const ProcSample& each) { return Report::process(origin, each); });
}

QString Actions::text(const QList<ProcSample>& processes, const TableStyle& style) {
    const Report::Origin origin{.isRunning = true, .hasCpu = true};
    return Table::of({Column::ofNumber(u"PID"_s, u"pid"_s), Column::ofBytes(u"RESIDENT"_s, u"rss_bytes"_s, 2),
                      Column::ofText(u"NAME"_s, u"name"_s),
                      Column::ofText(u"ARGUMENTS"_s, u"arguments"_s, 3)},
                     list(processes, origin), style);
}

QString Actions::text(const MemoryReturn& givesBack) {
    return u"This gives back %1%2 of memory and %3 of swap.\n"_s.arg(
        givesBack.isRough ? u"at most "_s : QString(), Formatters::bytes(givesBack.memoryBytes),
        Formatters::bytes(givesBack.swapBytes));
}

QList<ProcSample> Actions::samples(const AppModel& model, const QList<qint32>& pids) {
    QList<ProcSample> processes;
    for (const qint32 pid : pids) {
        if (const ProcSample* process = model.process(pid))
            processes.append(*process);
    }
    return processes;
}

std::optional<double> Actions::number(const QCommandLineParser& options, const QString& name,
                                      double fallback) {
    if (!options.isSet(name))
        return fallback;
    bool isNumber = false;
    const double value = options.value(name).toDouble(&isNumber);
    return isNumber && std::isfinite(value) && value >= 0 ? std::optional(value) : std::nullopt;
}
