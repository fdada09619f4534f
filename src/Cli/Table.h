#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// A column of a table of JSON objects.
struct Column {
    using Text = std::function<QString(const QJsonObject&)>;

    QString title;
    Text text;
    bool isNumber = false; ///< stands at the right
    /// What goes first where the terminal is too narrow: the greatest. A column of 0 stays.
    int expendable = 0;

    /// Return a column of one member, "–" where it is null.
    static Column ofText(const QString& title, const QString& key, int expendable = 0);
    static Column ofBytes(const QString& title, const QString& key, int expendable = 0);
    static Column ofNumber(const QString& title, const QString& key, int expendable = 0);
    static Column ofPercent(const QString& title, const QString& key, int expendable = 0);
    static Column ofSeconds(const QString& title, const QString& key, int expendable = 0);
    static Column ofTime(const QString& title, const QString& key, int expendable = 0);
};

/// How a table is written.
struct TableStyle {
    std::optional<int> width; ///< in columns of the terminal; empty: no limit
    bool hasColour = false;
};

/// Tables for people.
namespace Table {

/// Returns a line of titles and one for each row. The last column takes what is left of the width.
QString of(const QList<Column>& columns, const QJsonArray& rows, const TableStyle& style);

/// Returns lines "NAME  VALUE" without titles.
QString ofPairs(const QList<std::pair<QString, QString>>& pairs, const TableStyle& style);

/// Returns the text with its control characters visible.
QString safe(const QString& text);

} // namespace Table
