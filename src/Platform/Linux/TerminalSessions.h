#pragma once

#include <QList>
#include <QString>

/// The sessions (setsid(2)) on terminals of their own, which end with their terminal emulator.
namespace TerminalSessions {

/// Returns the processes in sessions that `pids` started on terminals, and in sessions started from there, as
/// by sudo. Leaves out `pids`, processes that ignore SIGHUP, and sessions without a terminal (daemons).
/// `root` is the mount point of procfs.
QList<qint32> startedFrom(const QList<qint32>& pids, const QString& root);

} // namespace TerminalSessions
