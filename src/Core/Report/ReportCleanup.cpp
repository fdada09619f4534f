#include "Core/Report/Report.h"

#include "Core/Report/ReportParts.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace Report {

using namespace ReportParts;

namespace {

QJsonObject projectOf(const LeftoverProject& project) {
    return {{u"path"_s, QFile::decodeName(project.path)},
            {u"size_bytes"_s, number(project.sizeBytes)},
            {u"last_use_at"_s, timeOrNull(project.lastUse)},
            {u"used_by"_s, QJsonArray::fromStringList(project.users)},
            {u"folders"_s, arrayOf(project.folders, [](const Leftover& folder) {
                 return QJsonObject{{u"path"_s, QFile::decodeName(folder.path)},
                                    {u"size_bytes"_s, number(folder.sizeBytes)}};
             })}};
}

QJsonObject actionOf(const LoggedAction& action) {
    return {{u"at"_s, time(action.timestamp)},
            {u"kind"_s, action.kind},
            {u"success"_s, action.success},
            {u"freed_bytes"_s, number(action.freedBytes)},
            {u"detail"_s, action.detail}};
}

} // namespace

QJsonObject target(const CacheTarget& target) {
    return {{u"name"_s, target.name},
            {u"size_bytes"_s, known(target.lastScanned.has_value(), target.sizeBytes)},
            {u"shared_bytes"_s, known(target.lastScanned.has_value(), target.sharedBytes)},
            {u"scanned_at"_s, timeOrNull(target.lastScanned)},
            {u"is_in_clean_all"_s, target.isInCleanAll},
            {u"has_user_files"_s, target.rule.hasUserFiles},
            {u"reason"_s, textOrNull(target.reason)},
            {u"notes"_s, QJsonArray::fromStringList(target.notes)},
            {u"volumes"_s,
             target.volumes ? QJsonValue(QJsonArray::fromStringList(*target.volumes)) : QJsonValue()},
            {u"places"_s, arrayOf(target.details, [](const CacheEntry& place) {
                 return QJsonObject{{u"path"_s, place.path}, {u"size_bytes"_s, number(place.sizeBytes)}};
             })}};
}

QJsonObject memoryReturn(const MemoryReturn& givesBack) {
    return {{u"memory_bytes"_s, number(givesBack.memoryBytes)},
            {u"swap_bytes"_s, number(givesBack.swapBytes)},
            {u"is_rough"_s, givesBack.isRough}};
}

QJsonObject caches(const Origin& origin, const QList<CacheTarget>& targets) {
    QJsonObject document = head(Kind::caches, origin);
    document.insert(u"targets"_s, arrayOf(targets, target));
    return document;
}

QJsonObject projects(const Origin& origin, const QList<LeftoverProject>& projects, const QString& failure) {
    QJsonObject document = head(Kind::projects, origin);
    document.insert(u"projects"_s, arrayOf(projects, projectOf));
    document.insert(u"failure"_s, textOrNull(failure));
    return document;
}

QJsonObject log(const Origin& origin, const QList<LoggedAction>& actions) {
    QJsonObject document = head(Kind::log, origin);
    document.insert(u"actions"_s, arrayOf(actions, actionOf));
    return document;
}

} // namespace Report
