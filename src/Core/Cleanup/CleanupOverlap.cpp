#include "Core/Cleanup/CleanupOverlap.h"

#include "Core/Cleanup/CleanupPlan.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace {

/// A folder of a target, or the files that it lists.
struct Part {
    qsizetype target = 0;
    qsizetype order = 0; ///< the earlier of two that list the same has it
    QByteArray root;     ///< absolute, without symlinks above
    QByteArray device;
    const ListedFolder* folder = nullptr;
    bool isWhole = false;   ///< all of the folder goes, so what is not listed is counted too
    QSet<QByteArray> paths; ///< of its entries; read only where it may cover another
};

QByteArray pathWithoutLinks(const ListedFolder& folder) {
    return QFile::encodeName(folder.root.isEmpty() ? folder.path : folder.root);
}

bool isWhole(const CacheTarget& target, const ListedFolder& folder) {
    return target.rule.measure == CleanupRule::Measure::folders &&
           folder.sizeBytes == CleanupPlan::ListingReader(folder.listing).totalBytes();
}

QList<Part> partsOf(const QList<CacheTarget>& targets) {
    QList<Part> parts;
    for (qsizetype i = 0; i < targets.size(); ++i) {
        if (targets[i].pruneCommand)
            continue;
        for (const ListedFolder& folder : targets[i].listed)
            parts.append({.target = i,
                          .order = parts.size(),
                          .root = pathWithoutLinks(folder),
                          .device = folder.listing.left(folder.listing.indexOf(':')),
                          .folder = &folder,
                          .isWhole = isWhole(targets[i], folder),
                          .paths = {}});
    }
    return parts;
}

bool mayCover(const Part& outer, const Part& inner) {
    if (outer.target == inner.target || outer.device != inner.device)
        return false;
    if (outer.root == inner.root)
        return outer.order < inner.order;
    return inner.root.startsWith(outer.root + '/');
}

QSet<QByteArray> pathsOf(const ListedFolder& folder) {
    QSet<QByteArray> paths;
    CleanupPlan::ListingReader reader(folder.listing);
    while (const auto entry = reader.next())
        paths.insert(entry->path);
    return paths;
}

/// Returns whether an entry, or a folder that it is in, is among the paths. Both are relative to one folder.
bool isAmong(const QSet<QByteArray>& paths, const QByteArray& path) {
    for (qsizetype end = path.indexOf('/'); end >= 0; end = path.indexOf('/', end + 1)) {
        if (paths.contains(path.left(end)))
            return true;
    }
    return paths.contains(path);
}

/// Returns the bytes of the inner part that are in one of the outer ones too.
quint64 coveredBytes(const Part& inner, const QList<const Part*>& outers) {
    const auto isCovered = [&](const QByteArray& path) {
        return std::ranges::any_of(outers, [&](const Part* outer) {
            const QByteArray within = inner.root.mid(outer->root.size() + 1);
            return isAmong(outer->paths, within.isEmpty() ? path : within + '/' + path);
        });
    };
    const auto holdsAll = [&](const Part* outer) {
        const QByteArray within = inner.root.mid(outer->root.size() + 1);
        return outer->isWhole || (!within.isEmpty() && isAmong(outer->paths, within));
    };
    if (std::ranges::any_of(outers, holdsAll))
        return inner.folder->sizeBytes;
    quint64 bytes = 0;
    CleanupPlan::ListingReader reader(inner.folder->listing);
    while (const auto entry = reader.next())
        bytes += isCovered(entry->path) ? entry->sizeBytes : 0;
    return bytes;
}

} // namespace

quint64 CleanupOverlap::totalBytes(const QList<CacheTarget>& targets) {
    quint64 total = 0;
    for (const CacheTarget& target : targets)
        total += target.sizeBytes;
    QList<Part> parts = partsOf(targets);
    for (const Part& inner : std::as_const(parts)) {
        QList<const Part*> outers;
        for (Part& outer : parts) {
            if (!mayCover(outer, inner))
                continue;
            if (outer.paths.isEmpty())
                outer.paths = pathsOf(*outer.folder);
            outers.append(&outer);
        }
        if (!outers.isEmpty())
            total -= std::min(total, coveredBytes(inner, outers));
    }
    return total;
}
