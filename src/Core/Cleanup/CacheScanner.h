#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/CleanupProgress.h"

#include <QByteArray>
#include <QCoroTask>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class Clock;
class Places;
class ToolRunner;
struct Platform;

/// Measures cleanup targets and lists what of them goes, with the tools of the system and one of ours; it
/// walks no folder itself. One scanner serves one scan and must outlive it.
class CacheScanner {
public:
    using Progress = std::function<void(const CleanupProgress&)>;

    /// `progress` is called whenever a target has been measured; its `target` is the first one still being
    /// measured, empty at the end.
    explicit CacheScanner(const Platform& platform, Progress progress = {});

    /// The same targets with what a scan finds filled in, from `sizeBytes` on, largest first; of equal
    /// size, the one that was finished first. All are measured at once, each one's own paths one after
    /// another. A tool that fails counts as having found nothing.
    QCoro::Task<QList<CacheTarget>> scan(QList<CacheTarget> targets);

    /// Bytes of a text such as "1.5GB" (steps of 1,000; TB, GB, MB, KB, B or none). 0 for a text that is no
    /// number, and for a number that is no size: negative, not finite, 2^64 or more.
    static quint64 parseSize(const QString& text);
    /// The kinds and sizes in a report of the container engine: lines of fields separated by TABs, the kind
    /// first and the size second. A line with fewer fields is left out.
    static QList<CacheEntry> parseContainerReport(const QByteArray& report);
    /// What such a report calls reclaimable in its third field, "800MB (66%)" for example, added up. Nothing
    /// for a report without.
    static std::optional<quint64> parseReclaimable(const QByteArray& report);
    /// The names in lines of "volume", TAB, NAME; whatever else the user's start files print is left out.
    static QStringList parseVolumes(const QByteArray& report);

private:
    QCoro::Task<> measure(CacheTarget target);
    QCoro::Task<CacheTarget> scanOne(CacheTarget target);
    QCoro::Task<CacheTarget> scanFolders(CacheTarget target);
    QCoro::Task<CacheTarget> scanOldFiles(CacheTarget target);
    QCoro::Task<CacheTarget> scanDocker(CacheTarget target);
    QCoro::Task<quint64> measureFolder(QString folder);
    QCoro::Task<QByteArray> askContainers(QString command);

    std::shared_ptr<ToolRunner> m_tools;
    std::shared_ptr<Places> m_places;
    std::shared_ptr<Clock> m_clock;
    Progress m_progress;
    QStringList m_waiting;         ///< names of the targets still being measured
    QList<CacheTarget> m_measured; ///< in the order of completion
};
