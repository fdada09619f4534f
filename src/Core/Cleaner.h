#pragma once

#include "Core/Models.h"

#include <QCoroTask>
#include <QString>
#include <QStringList>

#include <memory>

class Places;
class ToolRunner;

/// Deletes what a scan found: the contents of known cache folders, never the folders; regular files past
/// an age; or whatever a vendor's own command prunes.
namespace Cleaner {

struct CleanResult {
    bool success = true; ///< every step that ran succeeded
    quint64 freedBytes = 0;

    bool operator==(const CleanResult&) const = default;
};

/// Empties one target. A path where nothing exists is skipped; a path that fails does not stop the others.
///
/// Left alone, and reported as a failure: a folder reached through a link in its last component, because
/// the link says only that its owner wanted the contents somewhere else; and a folder with a writable mount
/// inside, because `rm` and `find` would go on into that file system.
///
/// Freed is what `du` saw vanish; for a target with a command of its own the size of the last scan; for
/// old files 0.
QCoro::Task<CleanResult> clean(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                               std::shared_ptr<Places> places);

/// Allocated bytes of `path` and everything below it on the same file system, as `du -sk -x` counts them;
/// 0 when it gives no figure.
QCoro::Task<quint64> directoryBytes(QString path, std::shared_ptr<ToolRunner> tools);

/// The bytes in a report of `du -sk`: its first word, in KiB. 0 when that is no number, or no size.
quint64 reportedBytes(const QByteArray& report);

/// Runs a program, its output thrown away. True when it ran and exited with 0.
QCoro::Task<bool> runShell(QString executable, QStringList arguments, std::shared_ptr<ToolRunner> tools);

} // namespace Cleaner
