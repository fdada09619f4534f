#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Cli/SeverityText.h"
#include "Core/Formatters.h"

using namespace Qt::StringLiterals;

namespace {

QString bytesOf(const QJsonObject& document, const QString& key) {
    const QJsonValue value = document.value(key);
    return value.isNull() ? u"–"_s : Formatters::bytes(static_cast<quint64>(value.toInteger()));
}

QString percentOf(const QJsonObject& document, const QString& key) {
    const QJsonValue value = document.value(key);
    return value.isNull() ? u"–"_s : Formatters::percent(value.toDouble());
}

QString statusText(const QJsonObject& document, const TableStyle& style) {
    const QString text = Table::ofPairs(
        {{u"CPU"_s, percentOf(document, u"cpu_percent"_s)},
         {u"Memory"_s, u"%1 of %2 (%3), %4 left"_s.arg(bytesOf(document, u"memory_used_bytes"_s),
                                                       bytesOf(document, u"memory_total_bytes"_s),
                                                       percentOf(document, u"memory_used_percent"_s),
                                                       bytesOf(document, u"memory_left_bytes"_s))},
         {u"Swap"_s, u"%1 of %2"_s.arg(bytesOf(document, u"swap_used_bytes"_s),
                                       bytesOf(document, u"swap_total_bytes"_s))},
         {u"Disk"_s, u"%1 free of %2"_s.arg(bytesOf(document, u"disk_free_bytes"_s),
                                            bytesOf(document, u"disk_total_bytes"_s))},
         {u"Temperature"_s, document.value(u"thermal_state"_s).toString()},
         {u"Processes"_s, QString::number(document.value(u"process_count"_s).toInteger())},
         {u"Alerts"_s, QString::number(document.value(u"alert_count"_s).toInteger())}},
        style);
    const QJsonArray alerts = document.value(u"alerts"_s).toArray();
    return text + SeverityText::lines(alerts, style);
}

ExitStatus runStatus(Run& run) {
    const QJsonObject document = QCoro::waitFor(run.machine.report(Report::Kind::status));
    run.output.print(document,
                     [&run](const QJsonObject& each) { return statusText(each, run.output.style()); });
    return ExitStatus::done;
}

} // namespace

Command Commands::status() {
    return {.name = u"status"_s, .summary = u"Shows the figures of the machine"_s, .run = runStatus};
}
