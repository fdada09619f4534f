#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Platform/ToolRunner.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

/// What the scanner, the screens and the cleaner share, so that a clean deletes what was measured and shown.
namespace CleanupPlan {

constexpr std::chrono::minutes toolTimeout{30};

// The requests take the path of a folder without symlinks above it, see PlaceFinder::rootOf.

/// Returns the options of a request for the patterns of what is left alone.
QStringList excludeOptions(const QStringList& excludes);

/// Asks for the size of `folder` with all below it on its file system.
ToolRequest measureRequest(const QString& folder);
/// Asks which files running programs use.
ToolRequest usedRequest();
/// Asks what the rule removes from `folder` at the time `now`. `used` is the answer to usedRequest; without
/// it the tool finds out by itself, which takes a tenth of a second where many programs run.
ToolRequest listRequest(const CleanupRule& rule, const QString& folder, Instant now,
                        const QByteArray& used = {});
/// Asks the same of the folder with the relative path `inside` in `folder`.
ToolRequest listInsideRequest(const CleanupRule& rule, const QString& folder, const QByteArray& inside,
                              Instant now);
/// Asks which entries of a listing removeRequest would remove.
ToolRequest checkRequest(const CleanupRule& rule, const ListedFolder& folder, Instant now);
/// Asks to remove the entries of a listing from the folder that was listed. It prints lines of
/// "BYTES ENTRIES", what is gone so far, and at last "volume BEFORE AFTER", the free bytes.
ToolRequest removeRequest(const CleanupRule& rule, const ListedFolder& folder, Instant now);

/// What removeRequest has printed.
struct RemovalReport {
    quint64 bytes = 0;                                ///< gone so far
    std::optional<qint64> volumeBytes = std::nullopt; ///< by which the free bytes grew in the end

    void take(const QByteArray& line);
};

/// Asks a login shell, which finds the tools of vendors on the user's path.
ToolRequest shellRequest(const QString& command, std::chrono::milliseconds timeout);

/// Returns the folder of the action log, which no clean removes.
QString keptFolder();

/// One entry of a listing, which it points into.
struct Entry {
    quint64 sizeBytes = 0; ///< the length of an old file, or the space of the entry with all below it
    qint64 modified = 0;   ///< seconds since 1970, of the newest below it
    bool isFolder = false;
    bool isInUse = false;  ///< a running program has it open, or something below it
    QByteArrayView path;   ///< relative to the folder, in any encoding
    QByteArrayView record; ///< its text in the listing, with the NUL at the end
};

/// Reads a record of a listing, with the NUL at its end. Returns an empty optional when it is malformed.
std::optional<Entry> entryOf(QByteArrayView record);

/// Reads a listing from the front.
class ListingReader {
public:
    explicit ListingReader(QByteArrayView listing);
    /// Returns an empty optional at the end and at the first malformed record.
    std::optional<Entry> next();
    /// Returns the record of the folder itself, with the NUL at the end.
    QByteArrayView header() const { return m_header; }
    /// Returns the space of the folder with all below it, or the length of its old files.
    quint64 totalBytes() const { return m_totalBytes; }

private:
    std::optional<QByteArrayView> takeRecord();

    QByteArrayView m_rest;
    QByteArrayView m_header;
    quint64 m_totalBytes = 0;
};

/// What a clean removes: the names and sizes of the largest, and the count of all.
struct Names {
    QList<CacheEntry> shown; ///< without the folders on the way to them
    qsizetype count = 0;
};
Names namesOf(const CacheTarget& target, qsizetype maxShown);

/// Returns the size of what is listed, which is what a clean removes; of a target with a command its size.
quint64 listedBytes(const CacheTarget& target);

} // namespace CleanupPlan
