#include "Core/Cleanup/CacheCleanup.h"

#include "Core/ActionLog/ActionLog.h"
#include "Core/Cleanup/CacheScanner.h"
#include "Core/Cleanup/CleanupOverlap.h"
#include "Core/Cleanup/CleanupPlan.h"
#include "Core/OnThread.h"
#include "Platform/CleanupTargets.h"
#include "Platform/Clock.h"
#include "Platform/Places.h"
#include "Preferences.h"

#include <QHash>
#include <QPointer>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QList<CacheTarget> without(QList<CacheTarget> targets, const QStringList& excludes) {
    for (CacheTarget& target : targets)
        target.rule.excludes = excludes;
    return targets;
}

/// What a target of somebody's work is asked, each on a thread of its own.
struct WorkQuestions {
    PlatformTarget target;
    PlaceFinder::Finding places;
    QCoro::Task<std::optional<QStringList>> kept;
};

std::vector<WorkQuestions> askAboutWork(const Platform& platform, std::chrono::milliseconds patience) {
    std::vector<WorkQuestions> questions;
    for (const PlatformTarget& target : platform.cleanupTargets->all()) {
        if (!target.isData)
            continue;
        const std::function<QStringList()> kept = [targets = platform.cleanupTargets, target] {
            return targets->kept(target);
        };
        questions.push_back(
            {target, PlaceFinder::find(target.paths, platform.places, patience), onThread(kept, patience)});
    }
    return questions;
}

} // namespace

CacheCleanup::CacheCleanup(const Platform& platform, ActionLog& log, const Preferences& preferences,
                           std::chrono::milliseconds patience)
    : m_platform(platform)
    , m_log(log)
    , m_preferences(preferences)
    , m_patience(patience) {
    for (const PlatformTarget& target : m_platform.cleanupTargets->all())
        m_targets.append(CacheTarget::of(target));
    findReclaimable();
}

bool CacheCleanup::isShown(const CacheTarget& target) const {
    const auto hasSomething = [this](const CacheTarget& one) {
        return one.lastScanned ? one.sizeBytes > 0 || !one.notes.isEmpty() : m_found.contains(one.name);
    };
    if (target.isOfSystem() || hasSomething(target))
        return hasSomething(target);
    const auto canExist = [this](const QString& path) { return m_platform.places->canExist(path); };
    return target.paths.isEmpty() || std::ranges::any_of(target.paths, canExist);
}

QList<CacheTarget> CacheCleanup::shownTargets() const {
    QList<CacheTarget> shown = m_targets;
    shown.removeIf([this](const CacheTarget& target) { return !isShown(target); });
    return shown;
}

QCoro::Task<> CacheCleanup::lookForPlaces() {
    const QPointer<CacheCleanup> self(this);
    const QList<CacheTarget> targets = m_targets;
    std::vector<std::pair<QString, PlaceFinder::Finding>> findings;
    for (const CacheTarget& target : targets) {
        if (!target.lastScanned && target.rule.measure != CleanupRule::Measure::command)
            findings.emplace_back(target.name,
                                  PlaceFinder::find(target.paths, m_platform.places, m_patience));
    }
    QSet<QString> found;
    for (auto& [name, finding] : findings) {
        const Result<QList<FoundPlace>> places = co_await finding;
        if (!self)
            co_return;
        if (!places.value.isEmpty())
            found.insert(name);
    }
    if (found == m_found)
        co_return;
    publish(m_found, found);
    findReclaimable();
}

void CacheCleanup::findReclaimable() {
    m_reclaimable = shownTargets();
    m_reclaimable.removeIf([](const CacheTarget& target) { return !target.isInCleanAll; });
    CleanupOverlap::mark(m_reclaimable);
}

/// Returns the targets with what stays of each by now. A folder that holds somebody's work keeps it when it
/// is emptied: models are among the user's caches. So nothing may go while a place of such work is unknown.
QCoro::Task<Result<QList<CacheTarget>>> CacheCleanup::withWhatStays(QList<CacheTarget> targets) const {
    std::vector<WorkQuestions> works = askAboutWork(m_platform, m_patience);
    QHash<QString, QStringList> keptOf;
    QStringList data;
    for (WorkQuestions& work : works) {
        const Result<QList<FoundPlace>> places = co_await work.places;
        const std::optional<QStringList> kept = co_await work.kept;
        if (!places.done || !kept) {
            const QString silence = PlaceFinder::silence(work.target.paths.value(0));
            co_return {Outcome::failure(places.done ? silence : places.reason), targets};
        }
        keptOf[work.target.name] = *kept;
        for (const FoundPlace& found : places.value)
            data.append(found.place.path);
    }
    for (CacheTarget& target : targets) {
        const bool isData = target.isOfSystem() && target.rule.hasUserFiles;
        const QStringList kept = keptOf.value(target.name) + (isData ? QStringList() : data);
        target.rule.kept.assign(kept.begin(), kept.end());
    }
    co_return {Outcome::success(), targets};
}

QCoro::Task<> CacheCleanup::rescan() {
    const QPointer<CacheCleanup> self(this);
    const int scan = ++m_scansBegun;
    const int total = static_cast<int>(m_targets.size());
    const QString first = total > 0 ? m_targets.first().name : QString();
    publish(m_scanProgress, std::optional(CleanupProgress{first, 0, total}));

    const auto tell = [self, scan](const CleanupProgress& progress) {
        if (self && self->m_scansBegun == scan)
            self->publish(self->m_scanProgress, std::optional(progress));
    };
    std::exchange(m_scanning, std::stop_source()).request_stop(); // nobody wants the older one
    CacheScanner scanner(m_platform, tell, m_patience, m_scanning.get_token());
    auto looking = withWhatStays(m_targets);
    const Result<QList<CacheTarget>> known = co_await looking;
    if (!self || m_scansBegun != scan)
        co_return;
    QList<CacheTarget> measured = m_targets;
    if (known.done) {
        auto scanning = scanner.scan(without(known.value, m_preferences.cleanupExcludes()));
        measured = co_await scanning;
        if (!self || m_scansBegun != scan)
            co_return;
    } else {
        for (CacheTarget& target : measured)
            target.notes = QStringList(known.reason);
    }
    publish(m_targets, measured);
    findReclaimable();
    publish(m_scanProgress, std::optional<CleanupProgress>());
}

void CacheCleanup::expectCleans(const QList<CacheTarget>& targets) {
    if (!m_cleanProgress)
        publish(m_report, CleanupReport{});
    CleanupProgress progress = m_cleanProgress.value_or(CleanupProgress{});
    progress.total += static_cast<int>(targets.size());
    for (const CacheTarget& target : targets)
        progress.totalBytes += CleanupPlan::listedBytes(target);
    if (progress.total > 0)
        publish(m_cleanProgress, std::optional(progress));
}

void CacheCleanup::countCleans(int done) {
    CleanupProgress progress = *m_cleanProgress;
    progress.done += done;
    publish(m_cleanProgress, progress.done < progress.total ? std::optional(progress) : std::nullopt);
}

Cleaner::Progress CacheCleanup::progressOf(quint64 total) {
    const auto last = std::make_shared<quint64>(0);
    return [self = QPointer<CacheCleanup>(this), last, total](quint64 bytes) {
        const quint64 sofar = std::min(bytes, total); // small old files take more than their length
        if (!self || !self->m_cleanProgress || sofar <= *last)
            return;
        CleanupProgress progress = *self->m_cleanProgress;
        progress.bytes += sofar - std::exchange(*last, sofar);
        self->publish(self->m_cleanProgress, std::optional(progress));
    };
}

QCoro::Task<Cleaner::CleanResult> CacheCleanup::cleanOne(Way way, CacheTarget target, QString logDetail,
                                                         std::stop_token stop) {
    const QPointer<CacheCleanup> self(this);
    CleanupProgress progress = m_cleanProgress.value_or(CleanupProgress{});
    progress.target = target.name;
    publish(m_cleanProgress, std::optional(progress));

    Result<QList<CacheTarget>> known{Outcome::success(), {target}};
    if (!target.lastScanned) {
        auto looking = withWhatStays({target});
        known = co_await looking;
        if (!self)
            co_return Cleaner::CleanResult();
    }
    Cleaner::CleanResult result{known};
    if (known.done) {
        target = known.value.constFirst();
        target.rule.excludes = m_preferences.cleanupExcludes();
        auto cleaning = way(target, m_platform.tools, m_platform.places, m_platform.clock->now(), stop,
                            progressOf(CleanupPlan::listedBytes(target)));
        result = co_await cleaning;
        if (!self)
            co_return result;
    }
    noteResult(target, result);
    countCleans(1);
    m_log.record(ActionLogEntry::Kind::clean, logDetail, result.freedBytes, result.done);
    co_return result;
}

void CacheCleanup::noteResult(const CacheTarget& target, const Cleaner::CleanResult& result) {
    CleanupReport report = m_report;
    if (result.done) {
        ++report.cleaned;
        report.freedBytes += result.freedBytes;
    } else {
        report.failures.append({target.name, result.reason});
    }
    if (result.volumeBytes)
        report.volumeBytes = report.volumeBytes.value_or(0) + *result.volumeBytes;
    publish(m_report, report);
}

QCoro::Task<Result<QByteArray>> CacheCleanup::listInside(CleanupRule rule, QString folder,
                                                         QByteArray inside) {
    return Cleaner::listInside(rule, folder, inside, m_platform.clock->now(), m_platform.tools);
}

void CacheCleanup::cancel() {
    CleanupReport report = m_report;
    report.wasCancelled = isCleaning();
    publish(m_report, report);
    std::exchange(m_cleaning, std::stop_source()).request_stop();
}

QCoro::Task<> CacheCleanup::cleanAndRescan(Way way, CacheTarget target) {
    const QPointer<CacheCleanup> self(this);
    expectCleans({target});
    auto cleaning = cleanOne(way, target, target.name, m_cleaning.get_token());
    co_await cleaning;
    if (!self)
        co_return;
    auto scanning = rescan();
    co_await scanning;
}

QCoro::Task<> CacheCleanup::clean(CacheTarget target) {
    return cleanAndRescan(Cleaner::clean, target);
}

QCoro::Task<> CacheCleanup::moveToTrash(CacheTarget target) {
    return cleanAndRescan(Cleaner::moveToTrash, target);
}

QList<CacheTarget> CacheCleanup::targetsToClean() const {
    QList<CacheTarget> targets = m_reclaimable;
    targets.removeIf([](const CacheTarget& target) { return target.sizeBytes == 0; });
    return targets;
}

QCoro::Task<std::pair<int, quint64>> CacheCleanup::cleanAll(QList<CacheTarget> targets) {
    const QPointer<CacheCleanup> self(this);
    expectCleans(targets);
    const std::stop_token stop = m_cleaning.get_token();

    std::pair<int, quint64> total(0, 0);
    for (qsizetype i = 0; i < targets.size(); ++i) {
        if (stop.stop_requested()) {
            countCleans(static_cast<int>(targets.size() - i));
            break;
        }
        auto cleaning = cleanOne(Cleaner::clean, targets[i], u"[batch] "_s + targets[i].name, stop);
        const Cleaner::CleanResult result = co_await cleaning;
        if (!self)
            co_return total;
        if (result.done) {
            ++total.first;
            total.second += result.freedBytes;
        }
    }
    auto scanning = rescan();
    co_await scanning;
    co_return total;
}
