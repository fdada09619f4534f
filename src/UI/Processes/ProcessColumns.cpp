#include "UI/Processes/ProcessColumns.h"

#include "Core/Formatters.h"
#include "Core/Memory/MemoryFigures.h"
#include "Core/Translations.h"

#include <QCollator>
#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <functional>

namespace {

using Kind = ProcessColumn::Kind;
using Row = ProcessTableRow;
using Theme::Role;

/// Sorts what is not in order yet: sorting moves every process, and the model has them in order of memory.
template <auto figure> void largestFirst(QList<ProcSample>& processes) {
    if (!std::ranges::is_sorted(processes, std::ranges::greater(), figure))
        std::ranges::stable_sort(processes, std::ranges::greater(), figure);
}

/// Returns the place of each name. Comparing as people sort is slow, and many processes share a name.
QHash<QString, int> ranks(const QList<ProcSample>& processes) {
    QHash<QString, int> result;
    for (const ProcSample& process : processes)
        result.insert(process.name, 0);
    QStringList names = result.keys();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(names.begin(), names.end(), collator);
    int rank = 0;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (i > 0 && collator.compare(names[i - 1], names[i]) != 0)
            ++rank;
        result[names[i]] = rank;
    }
    return result;
}

/// Sorts in the user's alphabetical order.
void byName(QList<ProcSample>& processes) {
    const QHash<QString, int> rank = ranks(processes);
    std::ranges::stable_sort(processes, {},
                             [&rank](const ProcSample& process) { return rank.value(process.name); });
}

/// Returns the sum of a figure over the processes of a row, "—" while it is unknown for one of them.
template <auto figure> QString sumOf(const Row& row) {
    quint64 sum = 0;
    for (const ProcSample& process : row.processes.isEmpty() ? QList{row.first} : row.processes) {
        const auto bytes = process.memory ? process.memory->use.*figure : std::nullopt;
        if (!bytes)
            return QStringLiteral("—");
        sum += *bytes;
    }
    return Formatters::bytes(sum);
}

constexpr ProcessColumn processColumns[] = {
    {.id = u"name",
     .title = QT_TRANSLATE_NOOP("Columns", "Name"),
     .text = [](const Row& row) { return Formatters::visible(row.first.name); },
     .kind = Kind::name,
     .alignment = Qt::AlignLeft,
     .width = 0,
     .role = Role::primaryText,
     .isInGrouped = true,
     .toolTip = [](const Row& row) { return Formatters::visible(row.first.executablePath); },
     .order = {.sort = byName, .place = 3}},
    {.id = u"group",
     .title = QT_TRANSLATE_NOOP("Columns", "Group"),
     .text = [](const Row& row) { return Translations::of(row.first.group); },
     .alignment = Qt::AlignLeft,
     .width = 156,
     .isInGrouped = true},
    {.id = u"pid",
     .title = QT_TRANSLATE_NOOP("Columns", "PID"),
     .text = [](const Row& row) { return QString::number(row.first.pid); }},
    {.id = u"cpu",
     .title = QT_TRANSLATE_NOOP("Columns", "CPU%"),
     .text = [](const Row& row) { return Formatters::percent(row.cpuPercent); },
     .role = Role::primaryText,
     .isInGrouped = true,
     .order = {.sort = largestFirst<&ProcSample::cpuPercent>,
               .place = 2,
               .label = QT_TRANSLATE_NOOP("Columns", "CPU")}},
    {.id = u"ram",
     .title = QT_TRANSLATE_NOOP("Columns", "RAM"),
     .text =
         [](const Row& row) {
             return row.processes.isEmpty() ? Formatters::bytes(row.first.rssBytes) : row.memory.text();
         },
     .width = 84,
     .role = Role::primaryText,
     .isInGrouped = true,
     .toolTip = [](const Row& row) { return row.processes.isEmpty() ? QString() : row.memory.parts(); },
     .order = {.sort = largestFirst<&ProcSample::rssBytes>, .place = 1}},
    {.id = u"own",
     .title = QT_TRANSLATE_NOOP("Columns", "Own"),
     .text = sumOf<&ProcessMemoryUse::uniqueBytes>,
     .width = 84,
     .isInGrouped = true,
     .isOptional = true,
     .toolTip =
         [](const Row&) {
             return QCoreApplication::translate("Columns", "Memory that no other process shares");
         }},
    {.id = u"swap",
     .title = QT_TRANSLATE_NOOP("Columns", "Swap"),
     .text = sumOf<&ProcessMemoryUse::swapBytes>,
     .width = 84,
     .isInGrouped = true,
     .isOptional = true},
    {.id = u"threads",
     .title = QT_TRANSLATE_NOOP("Columns", "Threads"),
     .text = [](const Row& row) { return QString::number(row.first.threads); }},
    {.id = u"idle",
     .title = QT_TRANSLATE_NOOP("Columns", "Idle"),
     .text = [](const Row& row) { return Formatters::duration(row.first.idleSeconds); },
     .order = {.sort = largestFirst<&ProcSample::idleSeconds>, .place = 4}},
    {.id = u"procs",
     .title = QT_TRANSLATE_NOOP("Columns", "Procs"),
     .text = [](const Row& row) { return QString::number(row.processes.size()); },
     .isInFlat = false,
     .isInGrouped = true},
    {.id = u"actions",
     .title = QT_TRANSLATE_NOOP("Columns", "Actions"),
     .text = [](const Row&) { return QString(); },
     .kind = Kind::actions,
     .alignment = Qt::AlignLeft,
     .width = 3 * ProcessColumn::buttonSide + 8,
     .isInGrouped = true},
};

} // namespace

QList<const ProcessColumn*> ProcessColumns::shown(bool isGrouped, const QStringList& chosen) {
    QList<const ProcessColumn*> result;
    for (const ProcessColumn& column : processColumns) {
        const bool isHidden = column.isOptional && !chosen.contains(column.id);
        if (!isHidden && (isGrouped ? column.isInGrouped : column.isInFlat))
            result.append(&column);
    }
    return result;
}

QList<const ProcessColumn*> ProcessColumns::optional() {
    QList<const ProcessColumn*> result;
    for (const ProcessColumn& column : processColumns) {
        if (column.isOptional)
            result.append(&column);
    }
    return result;
}

QList<const ProcessColumn*> ProcessColumns::sortable() {
    QList<const ProcessColumn*> result;
    for (const ProcessColumn& column : processColumns) {
        if (column.order.sort)
            result.append(&column);
    }
    std::ranges::stable_sort(result, {}, [](const ProcessColumn* column) { return column->order.place; });
    return result;
}

const ProcessColumn* ProcessColumns::withId(QStringView id) {
    const auto* found = std::ranges::find(processColumns, id, &ProcessColumn::id);
    return found == std::ranges::end(processColumns) ? nullptr : found;
}
