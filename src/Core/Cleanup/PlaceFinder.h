#pragma once

#include "Platform/Places.h"
#include "Platform/Result.h"

#include <QCoroTask>
#include <QList>
#include <QStringList>

#include <chrono>
#include <memory>

/// A place of a cleanup target that exists.
struct FoundPlace {
    Place place;
    QString root;        ///< its path without symlinks above it
    bool hasLog = false; ///< the folder of the action log, which no clean removes, is in it

    bool operator==(const FoundPlace&) const = default;
};

namespace PlaceFinder {

using Finding = QCoro::Task<Result<QList<FoundPlace>>>;

/// A network file system that is gone may never answer.
constexpr std::chrono::seconds patience{10};

/// Returns the existing places of the paths of a target in their order. A path to or into a place of the list
/// is left out. They are looked for on a thread of its own. Fails with "PATH does not answer." when a path
/// keeps it for longer than `limit`.
Finding find(QStringList paths, std::shared_ptr<const Places> places,
             std::chrono::milliseconds limit = patience);

/// Says for the user that a path does not answer.
QString silence(const QString& path);

/// Returns the path of a folder without symlinks above it; the tools follow none below. The thread that calls
/// it may wait for a file system.
QString rootOf(const QString& folder);

} // namespace PlaceFinder
