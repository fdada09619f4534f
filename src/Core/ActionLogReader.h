#pragma once

#include "Core/LoggedAction.h"

#include <QList>

/// The action log file as the history shows it.
namespace ActionLogReader {

QString path();

/// Every well-formed line, newest first; lines of one second in the order of the file. A damaged line (not
/// UTF-8, too few fields, no date, no byte count) is left out and hides no other. Empty when there is no
/// readable file.
QList<LoggedAction> read();

/// The whole log as comma-separated text with a header line, in the order of `read`.
QString exportCSV();

/// Leaves an empty file. Errors are ignored.
void clear();

} // namespace ActionLogReader
