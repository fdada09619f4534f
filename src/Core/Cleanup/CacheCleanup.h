#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/Cleaner.h"
#include "Core/Cleanup/CleanupProgress.h"
#include "Core/Cleanup/PlaceFinder.h"
#include "Core/Observable.h"
#include "Platform/Platform.h"

#include <QCoroTask>

#include <QSet>

#include <chrono>
#include <optional>
#include <stop_token>
#include <utility>

class ActionLog;
class Preferences;

/// The cleanup targets of the last scan, and the scans and cleans that run.
class CacheCleanup : public Observable {
    Q_OBJECT

public:
    /// `log` and `preferences` outlive the cleanup. `patience`: how long the places of a target may take to
    /// answer.
    CacheCleanup(const Platform& platform, ActionLog& log, const Preferences& preferences,
                 std::chrono::milliseconds patience = PlaceFinder::patience);

    /// Returns the fixed catalogue and the system's own targets behind it, after a scan the largest first.
    const QList<CacheTarget>& targets() const { return m_targets; }
    /// Returns the targets that a person may want to see: those of the system with something to clean, and
    /// the catalogue without what only other systems have. Before a scan a place that exists stands for
    /// something to clean; `lookForPlaces` finds them.
    QList<CacheTarget> shownTargets() const;
    QCoro::Task<> lookForPlaces();
    /// Returns the shown targets that "Clean All" may clean. What they share is counted among them.
    const QList<CacheTarget>& reclaimable() const { return m_reclaimable; }
    /// Returns an empty optional while no scan runs.
    const std::optional<CleanupProgress>& scanProgress() const { return m_scanProgress; }
    /// Returns an empty optional while no clean runs. Cleans that run at the same time are counted together.
    const std::optional<CleanupProgress>& cleanProgress() const { return m_cleanProgress; }
    const CleanupReport& report() const { return m_report; }
    bool isScanning() const { return m_scanProgress.has_value(); }
    bool isCleaning() const { return m_cleanProgress.has_value(); }

    /// Measures every target, then publishes all, largest first. Of overlapping scans only the last to begin
    /// publishes. While a place of somebody's work does not answer, nothing is measured and each target has
    /// a note of it.
    QCoro::Task<> rescan();
    /// Cleans one target, logs it and measures again.
    QCoro::Task<> clean(CacheTarget target);
    /// Moves the old files of one target to the trash, logs it and measures again.
    QCoro::Task<> moveToTrash(CacheTarget target);
    /// Returns the targets of "Clean All": the reclaimable ones with a known size above 0.
    QList<CacheTarget> targetsToClean() const;
    /// Cleans these targets one after another, logs each and measures again. Returns how many succeeded, and
    /// how many bytes those freed.
    QCoro::Task<std::pair<int, quint64>> cleanAll(QList<CacheTarget> targets);
    /// Lists what is inside an entry of a target's folder; see Cleaner::listInside.
    QCoro::Task<Result<QByteArray>> listInside(CleanupRule rule, QString folder, QByteArray inside);
    /// Cancels every clean that runs or waits. Those that were running have failed.
    void cancel();
    /// Ends the scan. What it has not measured by then keeps its figures.
    void stopScan() { m_scanning.request_stop(); }

private:
    using Way = decltype(&Cleaner::clean);

    bool isShown(const CacheTarget& target) const;
    QCoro::Task<Result<QList<CacheTarget>>> withWhatStays(QList<CacheTarget> targets) const;
    void findReclaimable();
    void expectCleans(const QList<CacheTarget>& targets);
    void countCleans(int done);
    void noteResult(const CacheTarget& target, const Cleaner::CleanResult& result);
    /// Returns what tells of the bytes that one clean has removed of `total`.
    Cleaner::Progress progressOf(quint64 total);
    QCoro::Task<> cleanAndRescan(Way way, CacheTarget target);
    QCoro::Task<Cleaner::CleanResult> cleanOne(Way way, CacheTarget target, QString logDetail,
                                               std::stop_token stop);

    Platform m_platform;
    ActionLog& m_log;
    const Preferences& m_preferences;
    std::chrono::milliseconds m_patience;
    QList<CacheTarget> m_targets = CacheTarget::defaults();
    QList<CacheTarget> m_reclaimable;
    QSet<QString> m_found; ///< names of the targets with a place that exists, before the first scan
    std::optional<CleanupProgress> m_scanProgress;
    std::optional<CleanupProgress> m_cleanProgress;
    CleanupReport m_report;
    int m_scansBegun = 0;
    std::stop_source m_cleaning; ///< of all cleans that run
    std::stop_source m_scanning; ///< of the newest scan
};
