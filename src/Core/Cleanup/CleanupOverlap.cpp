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
    bool isOldFiles = false;
    bool isWhole = false;   ///< all of the folder goes, so what is not listed is counted too
    QSet<QByteArray> paths; ///< of its entries; read only where it may cover another
};

bool isWhole(const ListedFolder& folder) {
    return folder.sizeBytes == CleanupPlan::ListingReader(folder.listing).totalBytes();
}

QList<Part> partsOf(const QList<CacheTarget>& targets) {
    QList<Part> parts;
    for (qsizetype i = 0; i < targets.size(); ++i) {
        if (targets[i].pruneCommand)
            continue;
        const bool isOldFiles = targets[i].rule.measure == CleanupRule::Measure::oldFiles;
        for (const ListedFolder& folder : targets[i].listed)
            parts.append({.target = i,
                          .order = parts.size(),
                          .root = QFile::encodeName(folder.realPath()),
                          .device = folder.listing.left(folder.listing.indexOf(':')),
                          .folder = &folder,
                          .isOldFiles = isOldFiles,
                          .isWhole = !isOldFiles && isWhole(folder),
                          .paths = {}});
    }
    return parts;
}

bool isBelow(const QByteArray& path, const QByteArray& folder) {
    return path.startsWith(folder + '/');
}

bool mayCover(const Part& outer, const Part& inner) {
    if (outer.target == inner.target || outer.device != inner.device)
        return false;
    const bool isInside = isBelow(inner.root, outer.root);
    if (outer.isOldFiles != inner.isOldFiles)
        return inner.isOldFiles && (isInside || outer.root == inner.root || isBelow(outer.root, inner.root));
    return isInside || (outer.root == inner.root && outer.order < inner.order);
}

QSet<QByteArray> pathsOf(const ListedFolder& folder) {
    QSet<QByteArray> paths;
    CleanupPlan::ListingReader reader(folder.listing);
    while (const auto entry = reader.next())
        paths.insert(entry->path.toByteArray());
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

bool covers(const Part& outer, const QByteArray& path) {
    return isBelow(path, outer.root) &&
           (outer.isWhole || isAmong(outer.paths, path.mid(outer.root.size() + 1)));
}

/// Returns the bytes of the inner part that are in one of the outer ones too.
quint64 coveredBytes(const Part& inner, const QList<const Part*>& outers) {
    const auto holdsAll = [&](const Part* outer) {
        return covers(*outer, inner.root) || (outer->isWhole && outer->root == inner.root);
    };
    if (std::ranges::any_of(outers, holdsAll))
        return inner.folder->sizeBytes;
    quint64 bytes = 0;
    CleanupPlan::ListingReader reader(inner.folder->listing);
    while (const auto entry = reader.next()) {
        const QByteArray path = inner.root + '/' + entry->path.toByteArray();
        const auto coversIt = [&](const Part* outer) { return covers(*outer, path); };
        bytes += std::ranges::any_of(outers, coversIt) ? entry->sizeBytes : 0;
    }
    return bytes;
}

} // namespace

void CleanupOverlap::mark(QList<CacheTarget>& targets) {
    for (CacheTarget& target : targets)
        target.sharedBytes = 0;
    QList<Part> parts = partsOf(targets);
    for (const Part& inner : std::as_const(parts)) {
        QList<const Part*> outers;
        for (Part& outer : parts) {
            if (!mayCover(outer, inner))
                continue;
            if (outer.paths.isEmpty() && !outer.isWhole)
                outer.paths = pathsOf(*outer.folder);
            outers.append(&outer);
        }
        if (!outers.isEmpty())
            targets[inner.target].sharedBytes += coveredBytes(inner, outers);
    }
}

quint64 CleanupOverlap::totalBytes(const QList<CacheTarget>& targets) {
    quint64 total = 0;
    for (const CacheTarget& target : targets)
        total += target.sizeBytes - std::min(target.sizeBytes, target.sharedBytes);
    return total;
}
