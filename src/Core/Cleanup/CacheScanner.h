#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/CleanupProgress.h"
#include "Core/Cleanup/PlaceFinder.h"

#include <QByteArray>
#include <QCoroTask>
#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

class CleanupTargets;
class Clock;
class Places;
class ToolRunner;
struct Platform;

/// Measures cleanup targets and lists what a clean removes, with tools of the system and one of ours. One
/// scanner serves one scan and outlives it.
class CacheScanner {
public:
    using Progress = std::function<void(const CleanupProgress&)>;

    /// Calls `progress` after each measured target. Its `target` is the first that is not measured yet, empty
    /// at the end.
    /// `patience`: how long the places of a target may take to answer. `stop` ends the tools; a target that
    /// is not measured by then stays as it was.
    explicit CacheScanner(const Platform& platform, Progress progress = {},
                          std::chrono::milliseconds patience = PlaceFinder::patience,
                          std::stop_token stop = {});

    /// Returns the targets with the fields of a scan filled in, largest first, equal sizes in the order of
    /// completion. Targets are measured in parallel, the paths of one target in sequence. A failed tool has
    /// found nothing. A target whose places do not answer keeps its last figures, with a note.
    QCoro::Task<QList<CacheTarget>> scan(QList<CacheTarget> targets);

    /// Returns the bytes of a text such as "1.5GB" (steps of 1,000; TB, GB, MB, KB, B or none). Returns 0 for
    /// a text that is no number, and for a number that is negative, not finite, or 2^64 or more.
    static quint64 parseSize(const QString& text);
    /// Returns the kinds and sizes in a report of the container engine: the first two of the fields of a
    /// line, separated by TABs. A line with fewer fields is left out.
    static QList<CacheEntry> parseContainerReport(const QByteArray& report);
    /// Returns the sum of the third fields of such a report, the reclaimable part: "800MB (66%)". Returns an
    /// empty optional without any.
    static std::optional<quint64> parseReclaimable(const QByteArray& report);
    /// Returns the names in lines of "volume", TAB, NAME. Other output of the user's start files is left out.
    /// Returns an empty optional where the report does not reach its end.
    static std::optional<QStringList> parseVolumes(const QByteArray& report);

private:
    QCoro::Task<> measure(CacheTarget target);
    QCoro::Task<CacheTarget> scanPlaces(CacheTarget target, QList<FoundPlace> places);
    QCoro::Task<CacheTarget> scanFolders(CacheTarget target, QList<FoundPlace> places);
    QCoro::Task<CacheTarget> scanOldFiles(CacheTarget target, QList<FoundPlace> places);
    QCoro::Task<CacheTarget> scanContainers(CacheTarget target);
    QCoro::Task<CacheTarget> scanByCommand(CacheTarget target);
    QCoro::Task<quint64> measureFolder(FoundPlace folder);
    QCoro::Task<QHash<QString, QString>> namesIn(QString folder);
    QCoro::Task<QByteArray> ask(QString command);

    std::shared_ptr<ToolRunner> m_tools;
    std::shared_ptr<Places> m_places;
    std::shared_ptr<CleanupTargets> m_targets;
    std::shared_ptr<Clock> m_clock;
    Progress m_progress;
    std::chrono::milliseconds m_patience;
    std::stop_token m_stop;
    QByteArray m_used;             ///< by running programs, when the scan began
    QStringList m_waiting;         ///< names of the targets still being measured
    QList<CacheTarget> m_measured; ///< in the order of completion
    quint64 m_bytes = 0;           ///< of these
};
