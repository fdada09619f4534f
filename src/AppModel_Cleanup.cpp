#include "AppModel.h"

#include "Core/CacheScanner.h"

#include <QPointer>

using namespace Qt::StringLiterals;

QCoro::Task<> AppModel::rescanCaches() {
    const QPointer<AppModel> self(this);
    const int scan = ++m_scansBegun;
    const int total = static_cast<int>(m_cacheTargets.size());
    const QString first = total > 0 ? m_cacheTargets.first().name : QString();
    publish(m_scanProgress, std::optional(CleanupProgress{first, 0, total}));

    CacheScanner scanner(m_platform, [self, scan](const CleanupProgress& progress) {
        if (self && self->m_scansBegun == scan)
            self->publish(self->m_scanProgress, std::optional(progress));
    });
    auto scanning = scanner.scan(m_cacheTargets);
    const QList<CacheTarget> measured = co_await scanning;
    if (!self || m_scansBegun != scan)
        co_return;
    publish(m_cacheTargets, measured);
    publish(m_scanProgress, std::optional<CleanupProgress>());
}

void AppModel::expectCleans(int count) {
    CleanupProgress progress = m_cleanProgress.value_or(CleanupProgress{});
    progress.total += count;
    if (progress.total > 0)
        publish(m_cleanProgress, std::optional(progress));
}

QCoro::Task<Cleaner::CleanResult> AppModel::cleanOne(CacheTarget target, QString logDetail) {
    const QPointer<AppModel> self(this);
    CleanupProgress progress = m_cleanProgress.value_or(CleanupProgress{});
    progress.target = target.name;
    publish(m_cleanProgress, std::optional(progress));

    auto cleaning = Cleaner::clean(target, m_platform.tools, m_platform.places);
    const Cleaner::CleanResult result = co_await cleaning;
    if (!self)
        co_return result;
    progress = *m_cleanProgress;
    ++progress.done;
    publish(m_cleanProgress, progress.done < progress.total ? std::optional(progress) : std::nullopt);
    record(ActionLogEntry::Kind::clean, logDetail, result.freedBytes, result.success);
    co_return result;
}

QCoro::Task<> AppModel::clean(CacheTarget target) {
    const QPointer<AppModel> self(this);
    expectCleans(1);
    auto cleaning = cleanOne(target, target.name);
    co_await cleaning;
    if (!self)
        co_return;
    auto rescan = rescanCaches();
    co_await rescan;
}

QCoro::Task<std::pair<int, quint64>> AppModel::cleanAll() {
    const QPointer<AppModel> self(this);
    QList<CacheTarget> kept = m_cacheTargets;
    kept.removeIf([](const CacheTarget& target) { return target.sizeBytes == 0; });
    expectCleans(static_cast<int>(kept.size()));

    std::pair<int, quint64> total(0, 0);
    for (const CacheTarget& target : kept) {
        auto cleaning = cleanOne(target, u"[batch] "_s + target.name);
        const Cleaner::CleanResult result = co_await cleaning;
        if (!self)
            co_return total;
        if (result.success) {
            ++total.first;
            total.second += result.freedBytes;
        }
    }
    auto rescan = rescanCaches();
    co_await rescan;
    co_return total;
}
