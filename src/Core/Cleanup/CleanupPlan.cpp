#include "Core/Cleanup/CleanupPlan.h"

#include "Core/ActionLog/ActionLogFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds usedTimeout{10};

/// Expands "~" at the front.
QString withHome(const QString& pattern) {
    const bool isBelowHome = pattern == u'~' || pattern.startsWith("~/"_L1);
    return isBelowHome ? QDir::homePath() + pattern.mid(1) : pattern;
}

ToolRequest request(const QString& verb, const CleanupRule& rule, const QString& folder, Instant now) {
    QStringList arguments{verb, u"--keep"_s, CleanupPlan::keptFolder()};
    for (const QString& kept : rule.kept)
        arguments << u"--keep"_s << kept;
    if (rule.measure == CleanupRule::Measure::oldFiles) {
        const auto seconds = std::chrono::floor<std::chrono::seconds>(now.time_since_epoch()).count();
        arguments << u"--older-than"_s << QString::number(rule.olderThanDays) << u"--now"_s
                  << QString::number(seconds);
    }
    if (rule.screenshotsOnly)
        arguments << u"--screenshots"_s;
    if (rule.isShared)
        arguments << u"--shared"_s;
    arguments << CleanupPlan::excludeOptions(rule.excludes) << folder;
    ToolRequest request;
    request.launchPath = u"cleanup"_s;
    request.arguments = arguments;
    request.timeout = CleanupPlan::toolTimeout;
    return request;
}

/// Takes the text up to the next space off the front; all of it where there is none.
QByteArrayView takeField(QByteArrayView& text) {
    const qsizetype space = text.indexOf(' ');
    const QByteArrayView field = space < 0 ? text : text.first(space);
    text = space < 0 ? QByteArrayView() : text.sliced(space + 1);
    return field;
}

} // namespace

QStringList CleanupPlan::excludeOptions(const QStringList& excludes) {
    QStringList options;
    for (const QString& pattern : excludes)
        options << u"--exclude"_s << withHome(pattern);
    return options;
}

ToolRequest CleanupPlan::measureRequest(const QString& folder) {
    ToolRequest asked;
    asked.launchPath = u"/usr/bin/du"_s;
    asked.arguments = {u"-sk"_s, u"-x"_s, folder};
    asked.captureOutput = true;
    asked.timeout = toolTimeout;
    return asked;
}

ToolRequest CleanupPlan::usedRequest() {
    ToolRequest asked;
    asked.launchPath = u"cleanup"_s;
    asked.arguments = {u"open"_s};
    asked.captureOutput = true;
    asked.timeout = usedTimeout;
    return asked;
}

ToolRequest CleanupPlan::listRequest(const CleanupRule& rule, const QString& folder, Instant now,
                                     const QByteArray& used) {
    ToolRequest asked = request(u"list"_s, rule, folder, now);
    asked.captureOutput = true;
    if (!used.isEmpty()) {
        asked.arguments.insert(1, u"--used"_s);
        asked.input = used;
    }
    return asked;
}

ToolRequest CleanupPlan::listInsideRequest(const CleanupRule& rule, const QString& folder,
                                           const QByteArray& inside, Instant now) {
    ToolRequest asked = listRequest(rule, folder, now);
    asked.arguments.insert(1, u"--in"_s);
    asked.input = inside; // its bytes may be no text
    return asked;
}

ToolRequest CleanupPlan::checkRequest(const CleanupRule& rule, const ListedFolder& folder, Instant now) {
    ToolRequest asked = request(u"check"_s, rule, folder.realPath(), now);
    asked.input = folder.listing;
    asked.captureOutput = true;
    return asked;
}

ToolRequest CleanupPlan::removeRequest(const CleanupRule& rule, const ListedFolder& folder, Instant now) {
    ToolRequest asked = request(u"remove"_s, rule, folder.realPath(), now);
    asked.input = folder.listing;
    return asked;
}

void CleanupPlan::RemovalReport::take(const QByteArray& line) {
    const QByteArrayList words = line.split(' ');
    if (words.size() == 3 && words[0] == "volume")
        volumeBytes = words[2].toLongLong() - words[1].toLongLong();
    else if (words.size() == 2)
        bytes = words[0].toULongLong();
}

ToolRequest CleanupPlan::shellRequest(const QString& command, std::chrono::milliseconds timeout) {
    ToolRequest asked;
    asked.launchPath = u"/bin/sh"_s;
    asked.arguments = {u"-lc"_s, command};
    asked.captureOutput = true;
    asked.timeout = timeout;
    return asked;
}

QString CleanupPlan::keptFolder() {
    return QFileInfo(ActionLogFile::path()).path();
}

CleanupPlan::ListingReader::ListingReader(QByteArrayView listing)
    : m_rest(listing) {
    m_header = takeRecord().value_or(QByteArrayView());
    QByteArrayView fields = m_header;
    takeField(fields);
    m_totalBytes = takeField(fields).toULongLong();
}

/// Returns the next record with the NUL at its end.
std::optional<QByteArrayView> CleanupPlan::ListingReader::takeRecord() {
    const qsizetype end = m_rest.indexOf('\0');
    if (end < 0)
        return std::nullopt;
    const QByteArrayView record = m_rest.first(end + 1);
    m_rest = m_rest.sliced(end + 1);
    return record;
}

std::optional<CleanupPlan::Entry> CleanupPlan::ListingReader::next() {
    const auto record = takeRecord();
    return record ? entryOf(*record) : std::nullopt;
}

std::optional<CleanupPlan::Entry> CleanupPlan::entryOf(QByteArrayView record) {
    QByteArrayView rest = record.chopped(1);
    takeField(rest); // the inode
    bool isSize = false;
    bool isTime = false;
    Entry entry{.sizeBytes = takeField(rest).toULongLong(&isSize),
                .modified = takeField(rest).toLongLong(&isTime),
                .record = record};
    const QByteArrayView marks = takeField(rest);
    entry.isFolder = marks.startsWith('d');
    entry.isInUse = marks.endsWith('u');
    entry.path = rest;
    return isSize && isTime && !rest.isEmpty() ? std::optional(entry) : std::nullopt;
}

CleanupPlan::Names CleanupPlan::namesOf(const CacheTarget& target, qsizetype maxShown) {
    Names names;
    QList<Entry> largest;
    for (const ListedFolder& folder : target.listed) {
        ListingReader reader(folder.listing);
        while (const auto entry = reader.next()) {
            if (entry->path.endsWith(".trashinfo")) // a record of the trash, no file of the user
                continue;
            ++names.count;
            largest.append(*entry);
            if (largest.size() > 2 * maxShown) {
                std::ranges::stable_sort(largest, std::ranges::greater(), &Entry::sizeBytes);
                largest.resize(maxShown);
            }
        }
    }
    std::ranges::stable_sort(largest, std::ranges::greater(), &Entry::sizeBytes);
    for (const Entry& entry : largest.first(std::min(maxShown, largest.size())))
        names.shown.append(
            {QFile::decodeName(entry.path.sliced(entry.path.lastIndexOf('/') + 1).toByteArray()),
             entry.sizeBytes});
    return names;
}

quint64 CleanupPlan::listedBytes(const CacheTarget& target) {
    if (target.pruneCommand)
        return target.sizeBytes;
    quint64 bytes = 0;
    for (const ListedFolder& folder : target.listed) {
        ListingReader reader(folder.listing);
        while (const auto entry = reader.next())
            bytes += entry->sizeBytes;
    }
    return bytes;
}
