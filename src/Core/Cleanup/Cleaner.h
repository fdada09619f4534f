#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Platform/Result.h"

#include <QCoroTask>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

class Places;
class ToolRunner;

/// Deletes what a scan listed: the contents of cache folders, regular files past an age, or what a vendor's
/// command prunes.
namespace Cleaner {

/// Done when every step succeeded, else with the reason of the first failure.
struct CleanResult : Outcome {
    quint64 freedBytes = 0; ///< also after a failure
    /// What came back on the volumes of the folders; negative when other programs wrote more.
    std::optional<qint64> volumeBytes = std::nullopt;

    bool operator==(const CleanResult&) const = default;
};

/// Is called with the bytes that a clean has removed so far.
using Progress = std::function<void(quint64)>;

/// Lists what the rule removes from a folder. Fails when that is unknown, as for a symlink. The path of the
/// folder has no symlinks above it. `used` is as of CleanupPlan::listRequest.
QCoro::Task<Result<QByteArray>> list(CleanupRule rule, QString folder, Instant now,
                                     std::shared_ptr<ToolRunner> tools, QByteArray used = {});
/// Lists what is in a folder of `folder`, whose relative path is `inside`. The listing is one of `folder`,
/// with the size of the folder inside.
QCoro::Task<Result<QByteArray>> listInside(CleanupRule rule, QString folder, QByteArray inside, Instant now,
                                           std::shared_ptr<ToolRunner> tools);

/// Removes exactly what the target's scan listed, from the folders that were listed. A target that was never
/// scanned is listed first. A missing folder is skipped. A folder that the system protects, or that was
/// replaced, is left alone and counts as a failure. The other folders are cleaned after a failure too. `stop`
/// ends what runs and fails the clean.
///
/// `freedBytes` is the difference of two runs of `du`. It is the size of the last scan for a target with a
/// prune command, and 0 for old files.
QCoro::Task<CleanResult> clean(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                               std::shared_ptr<Places> places, Instant now, std::stop_token stop = {},
                               Progress progress = {});

/// Moves the listed old files of a target to the trash of their volumes, with the checks of `clean`. It
/// frees nothing; `progress` gets the bytes of the files it is through with.
QCoro::Task<CleanResult> moveToTrash(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                                     std::shared_ptr<Places> places, Instant now, std::stop_token stop = {},
                                     Progress progress = {});

/// Returns the allocated bytes of `path` and all below it on its file system, as `du -sk -x` counts them, or
/// 0 when that fails.
QCoro::Task<std::optional<quint64>> directoryBytes(QString path, std::shared_ptr<ToolRunner> tools,
                                                   std::stop_token stop = {});

/// Returns the bytes in a report of `du -sk`: its first word, in KiB. Returns 0 when that is no size.
std::optional<quint64> reportedBytes(const QByteArray& report);

} // namespace Cleaner
