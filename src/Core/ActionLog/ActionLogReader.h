#pragma once

#include "Core/Instant.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// One line of the action log, read back.
struct LoggedAction {
    Instant timestamp; ///< whole seconds
    QString kind;      ///< as written, also when it is no kind this program knows
    bool success = false;
    quint64 freedBytes = 0;
    QString detail;

    bool operator==(const LoggedAction&) const = default;

    /// Seconds since 1970 with one decimal, "-", detail. Two actions of one second with one detail share it.
    QString id() const;
};

/// The action log file as the history shows it.
namespace ActionLogReader {

QString path();

/// Every well-formed line, newest first; lines of one second in the order of the file. A damaged line (too
/// few fields, no date, no byte count) is left out and hides no other; a file that is not UTF-8 has none.
QList<LoggedAction> parse(const QByteArray& bytes);

/// The file's lines. Empty when there is no readable file.
QList<LoggedAction> read();

/// As comma-separated text with a header line, in the order given.
QString csv(const QList<LoggedAction>& actions);

/// The whole log, in the order of `read`.
QString exportCSV();

/// Leaves an empty file. Errors are ignored.
void clear();

} // namespace ActionLogReader
