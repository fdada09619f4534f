#pragma once

#include "Core/CleanupPlan.h"
#include "Core/CleanupProgress.h"
#include "Core/Models.h"

#include <QByteArrayView>
#include <QCoroTask>
#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class Clock;
class Places;
class ToolRunner;
struct Platform;

/// Measures cleanup targets with the tools of the system; it walks no folder itself. One scanner serves one
/// scan and must outlive it.
class CacheScanner {
public:
    using Progress = std::function<void(const CleanupProgress&)>;

    /// `progress` is called whenever a target has been measured; its `target` is the first one still being
    /// measured, empty at the end.
    explicit CacheScanner(const Platform& platform, Progress progress = {});

    /// The same targets with `sizeBytes`, `details` and `lastScanned` filled in, largest first; of equal
    /// size, the one that was finished first. All are measured at once, each one's own paths one after
    /// another. A tool that fails counts as having found nothing.
    QCoro::Task<QList<CacheTarget>> scan(QList<CacheTarget> targets);

    /// Bytes of a text such as "1.5GB" (steps of 1,000; TB, GB, MB, KB, B or none). 0 for a text that is no
    /// number, and for a number that is no size: negative, not finite, 2^64 or more.
    static quint64 parseSize(const QString& text);
    /// The kinds and sizes in a report of the container engine: lines of fields separated by TABs, the kind
    /// first and the size second. A line with fewer fields is left out.
    static QList<CacheEntry> parseContainerReport(const QByteArray& report);
    /// Takes the next path off the front of a listing in which a NUL ends each; empty at the end.
    static QByteArray takePath(QByteArrayView& listing);

private:
    QCoro::Task<> measure(CacheTarget target);
    QCoro::Task<CacheTarget> scanOne(CacheTarget target);
    QCoro::Task<CacheTarget> scanFolders(CacheTarget target);
    QCoro::Task<CacheTarget> scanOldFiles(CacheTarget target, CleanupPlan::OldFiles which);
    QCoro::Task<CacheTarget> scanDocker(CacheTarget target);
    QCoro::Task<QByteArray> runShell(QString executable, QStringList arguments,
                                     std::optional<std::chrono::milliseconds> limit = {});

    std::shared_ptr<ToolRunner> m_tools;
    std::shared_ptr<Places> m_places;
    std::shared_ptr<Clock> m_clock;
    Progress m_progress;
    QStringList m_waiting;         ///< names of the targets still being measured
    QList<CacheTarget> m_measured; ///< in the order of completion
};
