#pragma once

#include "Core/ActionLog/ActionLogEntry.h"

/// The file of all actions, one line each.
namespace ActionLogFile {

/// Returns "~/Library/Logs/Tavrin/actions.log".
QString path();

/// Returns whether something else than a file is there. Opening a pipe or a device could block forever.
bool isObstructed();

/// Returns a line with its newline: time, kind, "ok" or "fail", freed bytes and detail, separated by TABs.
QByteArray lineOf(const ActionLogEntry& entry);

/// Appends the line to the action log, and makes its folder where it is missing. One write on a file opened
/// for appending keeps two writers apart. A line that cannot be written is lost.
void append(const ActionLogEntry& entry);

} // namespace ActionLogFile
