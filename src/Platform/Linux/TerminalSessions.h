#pragma once

#include <QList>
#include <QString>

/// Who ends when a terminal's window is closed: the sessions (setsid(2)) that a terminal emulator has
/// started, each on a terminal of its own.
namespace TerminalSessions {

/// The processes in the terminals that `pids` hold, and in those held from there, as by a nested shell or
/// sudo; `pids` themselves left out, and what ignores SIGHUP. `root` is where procfs is mounted. A session
/// that its terminal has let go (a daemon) is in none.
QList<qint32> heldBy(const QList<qint32>& pids, const QString& root);

} // namespace TerminalSessions
