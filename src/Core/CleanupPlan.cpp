#include "Core/CleanupPlan.h"

#include "Platform/Places.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

struct Place {
    QString path;
    QString canonical; ///< empty when nothing exists there
    bool isLink = false;
};

/// A link holds nothing itself: what lies behind it is counted where it really is.
bool covers(const Place& outer, const Place& inner, bool outerIsEarlier) {
    if (outer.canonical.isEmpty() || inner.canonical.isEmpty())
        return outer.path == inner.path && outerIsEarlier;
    if (outer.isLink && !inner.isLink)
        return false;
    if (outer.canonical == inner.canonical)
        return outerIsEarlier || (inner.isLink && !outer.isLink);
    return !outer.isLink && inner.canonical.startsWith(outer.canonical + u'/');
}

} // namespace

QStringList CleanupPlan::OldFiles::findArguments(const QString& folder) const {
    QStringList arguments{folder, u"-type"_s, u"f"_s, u"-mtime"_s, u"+%1"_s.arg(days)};
    if (!namePattern.isEmpty())
        arguments << u"-name"_s << namePattern;
    return arguments;
}

std::optional<CleanupPlan::OldFiles> CleanupPlan::oldFiles(const QString& targetName) {
    if (targetName == u"Old /tmp (>7d)")
        return OldFiles{u"/tmp"_s, 7, {}};
    if (targetName == u"Old Downloads (>30d)")
        return OldFiles{u"~/Downloads"_s, 30, {}};
    if (targetName == u"Old Desktop screenshots (>30d)")
        return OldFiles{u"~/Desktop"_s, 30, u"Screen*"_s};
    return std::nullopt;
}

QStringList CleanupPlan::placesOf(const CacheTarget& target, const Places& places) {
    QList<Place> found;
    for (const QString& path : target.paths) {
        for (const QString& place : places.locate(path)) {
            const QFileInfo info(place);
            found.append({place, info.canonicalFilePath(), info.isSymLink()});
        }
    }
    QStringList once;
    for (qsizetype i = 0; i < found.size(); ++i) {
        bool covered = false;
        for (qsizetype j = 0; j < found.size(); ++j)
            covered = covered || (i != j && covers(found[j], found[i], j < i));
        if (!covered)
            once.append(found[i].path);
    }
    return once;
}
