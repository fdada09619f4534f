#include "UI/Processes/ProcessColumns.h"

#include "Core/Formatters.h"
#include "Core/Inspection/ProcessFacts.h"
#include "Core/Memory/MemoryFigures.h"
#include "Core/Translations.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <vector>

namespace {

using Kind = ProcessColumn::Kind;
using Need = ProcessColumn::Need;
using Row = ProcessTableRow;
using Theme::Role;

constexpr double unknownFigure = std::numeric_limits<double>::quiet_NaN();
const QString unknownText = QStringLiteral("—");

/// Adds up a figure of the processes of a row. The sum is unknown while one of the figures is.
template <typename Figure> double sumOver(const Row& row, Figure figure) {
    if (row.processes.isEmpty())
        return figure(row.first);
    return std::accumulate(
        row.processes.begin(), row.processes.end(), 0.0,
        [&figure](double sum, const ProcSample& process) { return sum + figure(process); });
}

template <auto member> double memoryOf(const Row& row, const ColumnFacts&) {
    return sumOver(row, [](const ProcSample& process) {
        const auto bytes = process.memory ? process.memory->use.*member : std::nullopt;
        return bytes ? static_cast<double>(*bytes) : unknownFigure;
    });
}

template <auto member> double diskOf(const Row& row, const ColumnFacts& facts) {
    return sumOver(row, [&facts](const ProcSample& process) {
        const auto rate = facts.facts ? facts.facts->diskRate(process) : std::nullopt;
        return rate ? (*rate).*member : unknownFigure;
    });
}

/// Makes the text of a size of its figure.
template <auto figure> QString bytesText(const Row& row, const ColumnFacts& facts) {
    const double bytes = figure(row, facts);
    return std::isnan(bytes) ? unknownText : Formatters::bytes(static_cast<quint64>(bytes));
}

template <auto figure> QString rateText(const Row& row, const ColumnFacts& facts) {
    const double bytes = figure(row, facts);
    if (std::isnan(bytes))
        return unknownText;
    return bytes < 1 ? QStringLiteral("0")
                     : QCoreApplication::translate("Columns", "%1/s")
                           .arg(Formatters::bytes(static_cast<quint64>(bytes)));
}

double threadsOf(const Row& row, const ColumnFacts&) {
    return sumOver(row, [](const ProcSample& process) { return static_cast<double>(process.threads); });
}

/// Returns the time since one of the processes was last busy.
double idleOf(const Row& row, const ColumnFacts&) {
    double least = row.first.idleSeconds;
    for (const ProcSample& process : row.processes)
        least = std::min(least, process.idleSeconds);
    return least;
}

double ramOf(const Row& row, const ColumnFacts&) {
    return static_cast<double>(row.processes.isEmpty() ? row.first.rssBytes : row.memory.bytes);
}

QDateTime startTimeOf(const Row& row) {
    const auto sinceEpoch = row.first.startTime.time_since_epoch();
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count());
}

double startOf(const Row& row, const ColumnFacts&) {
    return std::chrono::duration<double>(row.first.startTime.time_since_epoch()).count();
}

QString commandOf(const Row& row, const ColumnFacts&) {
    const ProcSample& process = row.first;
    const QString program = process.executablePath.isEmpty() ? process.name : process.executablePath;
    return Formatters::visible(process.arguments.isEmpty() || process.arguments == program
                                   ? program
                                   : program + u' ' + process.arguments);
}

/// Returns the time of today, and the date of an earlier day.
QString startedOf(const Row& row, const ColumnFacts&) {
    const QDateTime start = startTimeOf(row);
    const QLocale locale;
    return start.date() == QDate::currentDate() ? locale.toString(start.time(), QLocale::ShortFormat)
                                                : locale.toString(start.date(), QLocale::ShortFormat);
}

QString parentOf(const Row& row, const ColumnFacts& facts) {
    const QString name = facts.names.value(row.first.parentPid);
    return name.isEmpty() ? unknownText : Formatters::visible(name);
}

QString sessionOf(const Row& row, const ColumnFacts& facts) {
    return facts.sessions.value(row.first.pid);
}

constexpr ProcessColumn processColumns[] = {
    {.id = u"name",
     .title = QT_TRANSLATE_NOOP("Columns", "Name"),
     .text = [](const Row& row, const ColumnFacts&) { return Formatters::visible(row.first.name); },
     .kind = Kind::name,
     .alignment = Qt::AlignLeft,
     .width = 0,
     .role = Role::primaryText,
     .isInGrouped = true,
     .isFixed = true,
     .toolTip = [](const Row& row,
                   const ColumnFacts&) { return Formatters::visible(row.first.executablePath); },
     .order = {.words = [](const Row& row, const ColumnFacts&) { return row.first.name; }, .place = 3}},
    {.id = u"group",
     .title = QT_TRANSLATE_NOOP("Columns", "Group"),
     .text = [](const Row& row, const ColumnFacts&) { return Translations::of(row.first.group); },
     .alignment = Qt::AlignLeft,
     .width = 156,
     .isInGrouped = true},
    {.id = u"pid",
     .title = QT_TRANSLATE_NOOP("Columns", "PID"),
     .text = [](const Row& row, const ColumnFacts&) { return QString::number(row.first.pid); },
     .order = {.figure = [](const Row& row,
                            const ColumnFacts&) { return static_cast<double>(row.first.pid); },
               .isAscending = true}},
    {.id = u"cpu",
     .title = QT_TRANSLATE_NOOP("Columns", "CPU%"),
     .text = [](const Row& row, const ColumnFacts&) { return Formatters::percent(row.cpuPercent); },
     .role = Role::primaryText,
     .isInGrouped = true,
     .order = {.figure = [](const Row& row, const ColumnFacts&) { return row.cpuPercent; },
               .place = 2,
               .label = QT_TRANSLATE_NOOP("Columns", "CPU")}},
    {.id = u"ram",
     .title = QT_TRANSLATE_NOOP("Columns", "RAM"),
     .text =
         [](const Row& row, const ColumnFacts&) {
             return row.processes.isEmpty() ? Formatters::bytes(row.first.rssBytes) : row.memory.text();
         },
     .width = 84,
     .role = Role::primaryText,
     .isInGrouped = true,
     .toolTip = [](const Row& row,
                   const ColumnFacts&) { return row.processes.isEmpty() ? QString() : row.memory.parts(); },
     .order = {.figure = ramOf, .place = 1}},
    {.id = u"own",
     .title = QT_TRANSLATE_NOOP("Columns", "Own"),
     .text = bytesText<memoryOf<&ProcessMemoryUse::uniqueBytes>>,
     .width = 84,
     .isInGrouped = true,
     .isOptional = true,
     .toolTip =
         [](const Row&, const ColumnFacts&) {
             return QCoreApplication::translate("Columns", "Memory that no other process shares");
         },
     .order = {.figure = memoryOf<&ProcessMemoryUse::uniqueBytes>}},
    {.id = u"swap",
     .title = QT_TRANSLATE_NOOP("Columns", "Swap"),
     .text = bytesText<memoryOf<&ProcessMemoryUse::swapBytes>>,
     .width = 84,
     .isInGrouped = true,
     .isOptional = true,
     .order = {.figure = memoryOf<&ProcessMemoryUse::swapBytes>}},
    {.id = u"diskRead",
     .title = QT_TRANSLATE_NOOP("Columns", "Disk read"),
     .text = rateText<diskOf<&DiskRate::read>>,
     .width = 84,
     .isInGrouped = true,
     .isOptional = true,
     .need = Need::disk,
     .toolTip =
         [](const Row&, const ColumnFacts&) {
             return QCoreApplication::translate("Columns", "Read from disks a second, of your own processes");
         },
     .order = {.figure = diskOf<&DiskRate::read>}},
    {.id = u"diskWrite",
     .title = QT_TRANSLATE_NOOP("Columns", "Disk write"),
     .text = rateText<diskOf<&DiskRate::written>>,
     .width = 84,
     .isInGrouped = true,
     .isOptional = true,
     .need = Need::disk,
     .toolTip =
         [](const Row&, const ColumnFacts&) {
             return QCoreApplication::translate("Columns",
                                                "Written to disks a second, of your own processes");
         },
     .order = {.figure = diskOf<&DiskRate::written>}},
    {.id = u"threads",
     .title = QT_TRANSLATE_NOOP("Columns", "Threads"),
     .text = [](const Row& row, const ColumnFacts& facts) { return QString::number(threadsOf(row, facts)); },
     .order = {.figure = threadsOf}},
    {.id = u"idle",
     .title = QT_TRANSLATE_NOOP("Columns", "Idle"),
     .text = [](const Row& row,
                const ColumnFacts& facts) { return Formatters::duration(idleOf(row, facts)); },
     .order = {.figure = idleOf, .place = 4}},
    {.id = u"procs",
     .title = QT_TRANSLATE_NOOP("Columns", "Procs"),
     .text = [](const Row& row, const ColumnFacts&) { return QString::number(row.processes.size()); },
     .isInFlat = false,
     .isInGrouped = true,
     .order = {.figure = [](const Row& row,
                            const ColumnFacts&) { return static_cast<double>(row.processes.size()); }}},
    {.id = u"user",
     .title = QT_TRANSLATE_NOOP("Columns", "User"),
     .text =
         [](const Row& row, const ColumnFacts& facts) {
             return facts.facts ? facts.facts->userName(row.first.uid) : QString();
         },
     .alignment = Qt::AlignLeft,
     .width = 90,
     .isInGrouped = true,
     .isOptional = true},
    {.id = u"command",
     .title = QT_TRANSLATE_NOOP("Columns", "Command"),
     .text = commandOf,
     .kind = Kind::command,
     .alignment = Qt::AlignLeft,
     .width = 260,
     .isOptional = true,
     .toolTip = commandOf},
    {.id = u"started",
     .title = QT_TRANSLATE_NOOP("Columns", "Started"),
     .text = startedOf,
     .width = 84,
     .isOptional = true,
     .toolTip = [](const Row& row,
                   const ColumnFacts&) { return QLocale().toString(startTimeOf(row), QLocale::LongFormat); },
     .order = {.figure = startOf}},
    {.id = u"parent",
     .title = QT_TRANSLATE_NOOP("Columns", "Parent"),
     .text = parentOf,
     .alignment = Qt::AlignLeft,
     .width = 110,
     .isOptional = true,
     .need = Need::names},
    {.id = u"session",
     .title = QT_TRANSLATE_NOOP("Columns", "Session"),
     .text = sessionOf,
     .alignment = Qt::AlignLeft,
     .width = 150,
     .isOptional = true,
     .need = Need::sessions},
    {.id = u"actions",
     .title = QT_TRANSLATE_NOOP("Columns", "Actions"),
     .text = [](const Row&, const ColumnFacts&) { return QString(); },
     .kind = Kind::actions,
     .alignment = Qt::AlignLeft,
     .width = 3 * ProcessColumn::buttonSide + 8,
     .isInGrouped = true,
     .isFixed = true},
};

/// Returns the place of each text. Comparing as people sort is slow, and many rows have the same text. An
/// empty text and a dash have none.
std::vector<double> ranks(const QStringList& texts) {
    QHash<QString, double> rankOf;
    for (const QString& text : texts)
        rankOf.insert(text, unknownFigure);
    QStringList distinct = rankOf.keys();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(distinct.begin(), distinct.end(), collator);
    int rank = 0;
    for (qsizetype i = 0; i < distinct.size(); ++i) {
        if (i > 0 && collator.compare(distinct[i - 1], distinct[i]) != 0)
            ++rank;
        if (!distinct[i].isEmpty() && distinct[i] != unknownText)
            rankOf[distinct[i]] = rank;
    }
    std::vector<double> result;
    for (const QString& text : texts)
        result.push_back(rankOf.value(text));
    return result;
}

std::vector<double> keysOf(const QList<Row>& rows, const ProcessColumn& column, const ColumnFacts& facts) {
    if (const auto figure = column.order.figure) {
        std::vector<double> keys;
        keys.reserve(static_cast<std::size_t>(rows.size()));
        for (const Row& row : rows)
            keys.push_back(figure(row, facts));
        return keys;
    }
    const auto words = column.order.words ? column.order.words : column.text;
    QStringList texts;
    for (const Row& row : rows)
        texts.append(words(row, facts));
    return ranks(texts);
}

bool isShown(const ProcessColumn& column, const QStringList& toggled) {
    return column.isFixed || column.isOptional == toggled.contains(column.id);
}

} // namespace

void ProcessColumns::sort(QList<Row>& rows, const ProcessColumn& column, bool turned,
                          const ColumnFacts& facts) {
    std::vector<double> keys = keysOf(rows, column, facts);
    const bool isAscending = (column.order.isAscending || !column.order.figure) != turned;
    for (double& key : keys) {
        if (std::isnan(key))
            key = std::numeric_limits<double>::infinity();
        else if (!isAscending)
            key = -key;
    }
    if (std::ranges::is_sorted(keys)) // as the model's order of memory is
        return;
    std::vector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&keys](int place) { return keys[static_cast<std::size_t>(place)]; });
    QList<Row> sorted;
    sorted.reserve(rows.size());
    for (const int place : order)
        sorted.append(std::move(rows[place]));
    rows = std::move(sorted);
}

QList<const ProcessColumn*> ProcessColumns::shown(bool isGrouped, const QStringList& toggled) {
    QList<const ProcessColumn*> result;
    for (const ProcessColumn& column : processColumns) {
        if (isShown(column, toggled) && (isGrouped ? column.isInGrouped : column.isInFlat))
            result.append(&column);
    }
    return result;
}

QList<const ProcessColumn*> ProcessColumns::choices(bool isGrouped) {
    QList<const ProcessColumn*> result;
    for (const ProcessColumn& column : processColumns) {
        if (!column.isFixed && (isGrouped ? column.isInGrouped : column.isInFlat))
            result.append(&column);
    }
    return result;
}

QList<const ProcessColumn*> ProcessColumns::inPicker() {
    QList<const ProcessColumn*> result;
    for (const ProcessColumn& column : processColumns) {
        if (column.isInPicker())
            result.append(&column);
    }
    std::ranges::sort(result, {}, [](const ProcessColumn* column) { return column->order.place; });
    return result;
}

const ProcessColumn* ProcessColumns::withId(QStringView id) {
    const auto* found = std::ranges::find(processColumns, id, &ProcessColumn::id);
    return found == std::ranges::end(processColumns) ? nullptr : found;
}

QString ProcessColumns::title(const ProcessColumn& column) {
    return QCoreApplication::translate("Columns", column.title);
}
