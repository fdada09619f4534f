#include "Cli/Table.h"

#include "Cli/TextWidth.h"
#include "Core/Formatters.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int leastWidth = 4; // of a column that was cut
const QString unknown = u"–"_s;
const QString gap = u"  "_s;

using Cells = QList<QStringList>; // by column

Column column(const QString& title, const QString& key, int expendable, bool isNumber,
              QString (*text)(const QJsonValue&)) {
    return {.title = title,
            .text =
                [key, text](const QJsonObject& row) {
                    const QJsonValue value = row.value(key);
                    return value.isNull() || value.isUndefined() ? unknown : text(value);
                },
            .isNumber = isNumber,
            .expendable = expendable};
}

int widthOf(const QStringList& cells) {
    int width = 0;
    for (const QString& cell : cells)
        width = std::max(width, TextWidth::of(cell));
    return width;
}

int totalOf(const QList<int>& widths, const QList<int>& shown) {
    int total = static_cast<int>(gap.size() * (shown.size() - 1));
    for (const int place : shown)
        total += widths[place];
    return total;
}

/// Narrows the last column, drops columns, then narrows the texts, until the rest fits or nothing is left to
/// narrow.
QList<int> fit(const QList<Column>& columns, QList<int>& widths, std::optional<int> limit) {
    QList<int> shown;
    for (int i = 0; i < columns.size(); ++i)
        shown.append(i);
    if (!limit)
        return shown;
    const auto surplus = [&] { return totalOf(widths, shown) - *limit; };
    const int last = static_cast<int>(columns.size()) - 1;
    constexpr int legible = 20; // for the last column, before another is dropped
    const auto narrowLast = [&] {
        if (shown.contains(last))
            widths[last] = std::max(std::min(widths[last], legible), widths[last] - std::max(0, surplus()));
    };
    narrowLast();
    while (surplus() > 0) {
        const auto next =
            std::ranges::max_element(shown, {}, [&columns](int place) { return columns[place].expendable; });
        if (columns[*next].expendable == 0)
            break;
        shown.erase(next);
        narrowLast();
    }
    const auto textWidth = [&](int place) { return columns[place].isNumber ? 0 : widths[place]; };
    while (surplus() > 0) { // a figure that was cut would be another
        const auto widest = std::ranges::max_element(shown, {}, textWidth);
        if (textWidth(*widest) <= leastWidth)
            break;
        --widths[*widest];
    }
    return shown;
}

QString lineOf(int row, const Cells& cells, const QList<Column>& columns, const QList<int>& widths,
               const QList<int>& shown, std::optional<int> limit) {
    QStringList parts;
    for (const int place : shown)
        parts.append(TextWidth::padded(TextWidth::cut(cells[place][row], widths[place]), widths[place],
                                       columns[place].isNumber));
    QString line = parts.join(gap);
    while (line.endsWith(u' '))
        line.chop(1);
    return limit ? TextWidth::cut(line, *limit) : line;
}

} // namespace

Column Column::ofText(const QString& title, const QString& key, int expendable) {
    return column(title, key, expendable, false,
                  [](const QJsonValue& value) { return Table::safe(value.toString()); });
}

Column Column::ofBytes(const QString& title, const QString& key, int expendable) {
    return column(title, key, expendable, true, [](const QJsonValue& value) {
        return Formatters::bytes(static_cast<quint64>(value.toInteger()));
    });
}

Column Column::ofNumber(const QString& title, const QString& key, int expendable) {
    return column(title, key, expendable, true,
                  [](const QJsonValue& value) { return QString::number(value.toInteger()); });
}

Column Column::ofPercent(const QString& title, const QString& key, int expendable) {
    return column(title, key, expendable, true,
                  [](const QJsonValue& value) { return Formatters::fixed(value.toDouble(), 1) + u'%'; });
}

Column Column::ofSeconds(const QString& title, const QString& key, int expendable) {
    return column(title, key, expendable, true,
                  [](const QJsonValue& value) { return Formatters::duration(value.toDouble()); });
}

Column Column::ofTime(const QString& title, const QString& key, int expendable) {
    return column(title, key, expendable, false, [](const QJsonValue& value) {
        return QDateTime::fromString(value.toString(), Qt::ISODate)
            .toLocalTime()
            .toString(u"yyyy-MM-dd HH:mm"_s);
    });
}

QString Table::safe(const QString& text) {
    return Formatters::visible(text);
}

QString Table::of(const QList<Column>& columns, const QJsonArray& rows, const TableStyle& style) {
    Cells cells;
    QList<int> widths;
    for (const Column& each : columns) {
        QStringList texts{each.title};
        for (const QJsonValue& row : rows)
            texts.append(each.text(row.toObject()));
        widths.append(widthOf(texts));
        cells.append(texts);
    }
    const QList<int> shown = fit(columns, widths, style.width);
    const QString head = lineOf(0, cells, columns, widths, shown, style.width);
    QString result = (style.hasColour ? u"\033[1m"_s + head + u"\033[0m"_s : head) + u'\n';
    for (int row = 1; row <= rows.size(); ++row)
        result += lineOf(row, cells, columns, widths, shown, style.width) + u'\n';
    return result;
}

QString Table::ofPairs(const QList<std::pair<QString, QString>>& pairs, const TableStyle& style) {
    int width = 0;
    for (const auto& pair : pairs)
        width = std::max(width, TextWidth::of(pair.first));
    QString result;
    for (const auto& [name, value] : pairs) {
        const QString line = TextWidth::padded(name, width, false) + gap + safe(value);
        result += (style.width ? TextWidth::cut(line, *style.width) : line) + u'\n';
    }
    return result;
}
