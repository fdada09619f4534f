#include "Core/Cleanup/PlaceFinder.h"

#include "Core/Cleanup/CleanupPlan.h"
#include "Core/OnThread.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <atomic>

namespace {

struct Found {
    FoundPlace found;
    QString canonical;
    bool isSymlink = false;
};

/// Returns whether `inner` is counted with `outer`. What a symlink leads to is counted at its real place.
bool covers(const Found& outer, const Found& inner, bool outerIsEarlier) {
    if (outer.isSymlink && !inner.isSymlink)
        return false;
    if (outer.canonical == inner.canonical)
        return outerIsEarlier || (inner.isSymlink && !outer.isSymlink);
    return !outer.isSymlink && inner.canonical.startsWith(outer.canonical + u'/');
}

/// Sets `at` to the index of the path that it looks at.
QList<FoundPlace> look(const QStringList& paths, const Places& places, std::atomic<qsizetype>& at) {
    QList<Found> all;
    for (at = 0; at < paths.size(); ++at) {
        for (const Place& place : places.locate(paths[at])) {
            const QFileInfo info(place.path);
            const QString canonical = info.canonicalFilePath();
            if (!canonical.isEmpty())
                all.append({{place, PlaceFinder::rootOf(place.path)}, canonical, info.isSymLink()});
        }
    }
    const QString log = QFileInfo(CleanupPlan::keptFolder()).canonicalFilePath();
    QList<FoundPlace> once;
    for (qsizetype i = 0; i < all.size(); ++i) {
        bool isCovered = false;
        for (qsizetype j = 0; j < all.size(); ++j)
            isCovered = isCovered || (i != j && covers(all[j], all[i], j < i));
        if (isCovered)
            continue;
        once.append(all[i].found);
        once.last().hasLog = !log.isEmpty() && log.startsWith(all[i].canonical + u'/');
    }
    return once;
}

} // namespace

QCoro::Task<Result<QList<FoundPlace>>>
PlaceFinder::find(QStringList paths, std::shared_ptr<const Places> places, std::chrono::milliseconds limit) {
    Result<QList<FoundPlace>> result{Outcome::success()};
    if (paths.isEmpty())
        co_return result;
    const auto at = std::make_shared<std::atomic<qsizetype>>(0);
    auto looking =
        onThread<QList<FoundPlace>>([paths, places, at] { return look(paths, *places, *at); }, limit);
    const std::optional<QList<FoundPlace>> found = co_await looking;
    if (found)
        result.value = *found;
    else
        result = {Outcome::failure(silence(paths.value(*at, paths.last())))};
    co_return result;
}

QString PlaceFinder::silence(const QString& path) {
    return QCoreApplication::translate("PlaceFinder", "%1 does not answer.").arg(path);
}

QString PlaceFinder::rootOf(const QString& folder) {
    const QFileInfo info(folder);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() || info.isSymLink() ? folder : canonical;
}
