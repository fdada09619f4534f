#pragma once

#include "Core/Instant.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// One line of the action log, read back.
struct LoggedAction {
    Instant timestamp; ///< whole seconds
    QString kind;      ///< as written, known or not
    bool success = false;
    quint64 freedBytes = 0;
    QString detail;

    bool operator==(const LoggedAction&) const = default;

    /// Returns the seconds since 1970 with one decimal, "-" and the detail. It need not be unique.
    QString id() const;
};

/// The action log file as the history shows it.
namespace ActionLogReader {

/// Returns the path of the action log.
QString path();

/// Returns every well-formed line, newest first, and lines of one second in the order of the file. A damaged
/// line (too few fields, no date, no byte count) is left out. A file that is not UTF-8 has no lines.
QList<LoggedAction> parse(const QByteArray& bytes);

/// Returns the lines of the file, none when it cannot be read.
QList<LoggedAction> read();

/// Returns comma-separated text with a header line, in the order of `actions`.
QString csv(const QList<LoggedAction>& actions);

/// Returns the whole log as CSV, in the order of `read`.
QString exportCSV();

/// Empties the file. Errors are ignored.
void clear();

} // namespace ActionLogReader
