#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Core/ActionLog/ActionLogEntry.h"
#include "Core/Iso8601.h"
#include "Core/NearestInstant.h"
#include "Platform/Clock.h"

#include <QCommandLineParser>
#include <QDate>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Reads "90m", "2h", "3d" before now, a day "2026-11-26" of the local time, or a whole time.
std::optional<Instant> sinceOf(const QString& text, Instant now) {
    if (const auto instant = Iso8601::parse(text.toLatin1()))
        return instant;
    if (const QDate day = QDate::fromString(text, Qt::ISODate); day.isValid())
        return nearestInstant(
            std::chrono::sys_seconds(std::chrono::seconds(day.startOfDay().toSecsSinceEpoch())));
    constexpr std::pair<char16_t, int> units[] = {{u'm', 60}, {u'h', 3600}, {u'd', 86400}};
    for (const auto& [unit, seconds] : units) {
        bool isNumber = false;
        const uint count = text.chopped(text.isEmpty() ? 0 : 1).toUInt(&isNumber);
        if (isNumber && text.endsWith(QChar(unit)) && count <= 1'000'000)
            return nearestInstant(std::chrono::floor<std::chrono::seconds>(now) -
                                  std::chrono::seconds(qint64(count) * seconds));
    }
    return std::nullopt;
}

QStringList kinds() {
    QStringList names;
    for (const auto kind : allCases<ActionLogEntry::Kind>())
        names.append(rawValue(kind));
    return names;
}

QString logText(const QJsonObject& document, const TableStyle& style) {
    const QJsonArray actions = document.value(u"actions"_s).toArray();
    if (actions.isEmpty())
        return u"No actions.\n"_s;
    const Column outcome = {.title = u"OUTCOME"_s,
                            .text =
                                [](const QJsonObject& action) {
                                    return action.value(u"success"_s).toBool() ? u"ok"_s : u"failed"_s;
                                },
                            .expendable = 2};
    return Table::of({Column::ofTime(u"TIME"_s, u"at"_s), Column::ofText(u"KIND"_s, u"kind"_s, 3), outcome,
                      Column::ofBytes(u"FREED"_s, u"freed_bytes"_s, 1),
                      Column::ofText(u"ACTION"_s, u"detail"_s)},
                     actions, style);
}

ExitStatus runLog(Run& run) {
    const QString kind = run.options.value(u"kind"_s);
    const QString since = run.options.value(u"since"_s);
    const auto start = sinceOf(since, run.environment.platform.clock->now());
    if (!kind.isEmpty() && !kinds().contains(kind)) {
        run.output.complain(u"log: no kind '%1'; there are %2"_s.arg(kind, kinds().join(u", "_s)));
        return ExitStatus::misuse;
    }
    if (!since.isEmpty() && !start) {
        run.output.complain(u"log: '%1' is no time; write 2h, 3d or 2026-11-26"_s.arg(since));
        return ExitStatus::misuse;
    }
    QList<LoggedAction> actions = ActionLogReader::read();
    const QFileInfo file(ActionLogReader::path());
    if (actions.isEmpty() && file.exists() && (!file.isFile() || file.size() > 0)) {
        run.output.complain(u"log: '%1' cannot be read"_s.arg(file.filePath()));
        return ExitStatus::notDone;
    }
    actions.removeIf([&](const LoggedAction& action) {
        return (!kind.isEmpty() && action.kind != kind) || (start && action.timestamp < *start);
    });
    const QJsonObject document = Report::log(run.machine.origin(), actions);
    run.output.print(document, [&run](const QJsonObject& each) { return logText(each, run.output.style()); });
    return ExitStatus::done;
}

} // namespace

Command Commands::log() {
    return {.name = u"log"_s,
            .summary = u"Shows the log of actions, the newest first"_s,
            .options = {{u"since"_s, u"only from then on: 2h, 3d, 2026-11-26"_s, u"TIME"_s},
                        {u"kind"_s, u"only "_s + kinds().join(u", "_s), u"KIND"_s}},
            .run = runLog};
}
