#include "Cli/SessionRows.h"

#include "Core/Sampling/ProgramPath.h"

using namespace Qt::StringLiterals;

namespace {

Column folder() {
    return {.title = u"FOLDER"_s, .text = [](const QJsonObject& row) {
                const QString path = row.value(u"folder"_s).toString();
                return path.isEmpty() ? u"–"_s : Table::safe(ProgramPath::withTilde(path));
            }};
}

Column ports() {
    return {.title = u"PORTS"_s,
            .text =
                [](const QJsonObject& row) {
                    QStringList texts;
                    const QJsonArray processes = row.value(u"processes"_s).toArray();
                    for (const QJsonValue& process : processes) {
                        const QJsonArray listening = process.toObject().value(u"ports"_s).toArray();
                        for (const QJsonValue& port : listening)
                            texts.append(QString::number(port.toInt()));
                    }
                    return texts.join(u',');
                },
            .expendable = 5};
}

Column count() {
    return {.title = u"PROCESSES"_s,
            .text =
                [](const QJsonObject& row) {
                    return QString::number(row.value(u"processes"_s).toArray().size());
                },
            .isNumber = true,
            .expendable = 4};
}

} // namespace

QString SessionRows::text(const QJsonObject& document, const TableStyle& style) {
    const QJsonArray sessions = document.value(u"sessions"_s).toArray();
    const QJsonArray leftOvers = document.value(u"left_overs"_s).toArray();
    const QJsonArray duplicates = document.value(u"duplicates"_s).toArray();
    const Column memory = Column::ofBytes(u"MEMORY"_s, u"memory_bytes"_s);
    const Column agent = Column::ofText(u"AGENT"_s, u"agent"_s);
    QString text = u"No sessions.\n"_s;
    if (!sessions.isEmpty())
        text = Table::of({Column::ofText(u"ID"_s, u"id"_s), agent, memory,
                          Column::ofPercent(u"CPU"_s, u"cpu_percent"_s, 3),
                          Column::ofText(u"STATE"_s, u"state"_s, 2), count(), ports(), folder()},
                         sessions, style);
    if (!leftOvers.isEmpty())
        text += u"\nLeft by ended sessions (tavrinctl end-leftovers):\n"_s +
                Table::of(
                    {agent, memory, count(), ports(), Column::ofTime(u"ENDED"_s, u"ended_at"_s, 3), folder()},
                    leftOvers, style);
    if (!duplicates.isEmpty())
        text += u"\nOlder servers of the same kind:\n"_s +
                Table::of({Column::ofText(u"SESSION"_s, u"session_id"_s), memory, count(),
                           Column::ofText(u"SERVER"_s, u"label"_s)},
                          duplicates, style);
    return text;
}
