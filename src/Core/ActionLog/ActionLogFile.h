#pragma once

#include "Core/ActionLog/ActionLogEntry.h"

/// The file of all actions, one line each.
namespace ActionLogFile {

/// "~/Library/Logs/Tavrin/actions.log" in the user's home folder.
QString path();

/// Whether something else than a file stands there. Opening a pipe or a device could wait for ever.
bool isObstructed();

/// The line of one action, its end included: time, kind, "ok" or "fail", freed bytes and detail, separated by
/// TABs.
QByteArray lineOf(const ActionLogEntry& entry);

/// Adds the line to the action log, its folder made where missing. The line is written by one call on a file
/// opened for appending, so that two writers never overwrite each other. A line that cannot be written is
/// lost without a word.
void append(const ActionLogEntry& entry);

} // namespace ActionLogFile
