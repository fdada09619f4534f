#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Platform/Result.h"

#include <QCoroTask>
#include <QString>
#include <QStringList>

#include <memory>
#include <stop_token>

class Places;
class ToolRunner;

/// Deletes what a scan listed: the contents of known cache folders, never the folders; regular files past an
/// age; or whatever a vendor's own command prunes.
namespace Cleaner {

/// Done when every step that ran was, else the reason of the first that was not.
struct CleanResult : Outcome {
    quint64 freedBytes = 0; ///< also by a clean that was not done

    bool operator==(const CleanResult&) const = default;
};

/// What of a folder goes by the rule. Not done when it cannot be found out, as for a link.
QCoro::Task<Result<QByteArray>> list(CleanupRule rule, QString folder, Instant now,
                                     std::shared_ptr<ToolRunner> tools);

/// Cleans one target: removes what its scan has listed, no less and no more, from the very folders that were
/// listed; a target that was never scanned is listed first. A folder that is gone is skipped; one that fails
/// does not stop the others. A folder to which the system objects, or which has become another one, is left
/// alone and counts as a failure. When `stop` is asked to, what runs is ended, nothing more is begun and the
/// clean has failed.
///
/// Freed is what `du` saw vanish; for a target with a command of its own the size of the last scan; for
/// old files 0.
QCoro::Task<CleanResult> clean(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                               std::shared_ptr<Places> places, Instant now, std::stop_token stop = {});

/// Allocated bytes of `path` and everything below it on the same file system, as `du -sk -x` counts them;
/// 0 when it gives no figure.
QCoro::Task<quint64> directoryBytes(QString path, std::shared_ptr<ToolRunner> tools,
                                    std::stop_token stop = {});

/// The bytes in a report of `du -sk`: its first word, in KiB. 0 when that is no number, or no size.
quint64 reportedBytes(const QByteArray& report);

} // namespace Cleaner
