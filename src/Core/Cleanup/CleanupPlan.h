#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Platform/Places.h"
#include "Platform/ToolRunner.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

/// What the scanner, the screens and the cleaner must agree on, so that what was measured and shown is what
/// gets deleted.
namespace CleanupPlan {

/// What takes longer than this hangs.
constexpr std::chrono::minutes longest{30};

/// The target's paths as this system has them, in order and each place once: a path that leads to a place
/// already listed, or into one, is left out. A place need not exist.
QList<Place> placesOf(const CacheTarget& target, const Places& places);

/// Asks for the size of `folder` with everything below it on its file system.
ToolRequest measureRequest(const QString& folder);
/// Asks what of `folder` goes by the rule at that time.
ToolRequest listRequest(const CleanupRule& rule, const QString& folder, Instant now);
/// Asks to remove what a listing holds, from the folder that was listed and no other.
ToolRequest removeRequest(const CleanupRule& rule, const ListedFolder& folder, Instant now);
/// Asks the user's own shell, which finds the tools of vendors where the user put them.
ToolRequest shellRequest(const QString& command, std::chrono::milliseconds limit);

/// The folder of the action log, which no clean removes.
QString keptFolder();

/// One entry of a listing; its path is relative to the folder and need not be text.
struct Entry {
    quint64 sizeBytes = 0; ///< an old file's length; else what the entry takes with all below it
    QByteArray path;

    bool operator==(const Entry&) const = default;
};

/// Reads a listing from the front. Nothing at its end, and at the first record that is none.
class ListingReader {
public:
    explicit ListingReader(QByteArrayView listing);
    std::optional<Entry> next();

private:
    std::optional<QByteArrayView> takeRecord();

    QByteArrayView m_rest;
};

/// Names of what goes: the `most` largest with their sizes, and how many there are in all.
struct Names {
    QList<CacheEntry> shown; ///< without the folders on the way to them
    qsizetype count = 0;
};
Names namesOf(const CacheTarget& target, qsizetype most);

/// Fills in `sharedBytes`. What lies in the folder of another target, or was listed by an earlier one, is
/// shared.
void markShared(QList<CacheTarget>& targets);

/// What cleaning all of them gives back, what several of them hold counted once. Goes by `sharedBytes`: where
/// only some targets of a scan are meant, markShared belongs before it.
quint64 totalBytes(const QList<CacheTarget>& targets);

} // namespace CleanupPlan
