#include "UI/Cleanup/CleanupTexts.h"

#include "Core/Cleanup/CleanupOverlap.h"
#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Formatters.h"
#include "Core/Translations.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxQuotedNames = 3;
constexpr qsizetype maxNameLength = 40;
const auto paragraph = u"\n\n"_s;

QString quoted(const QString& name) {
    QString text = Formatters::visible(name);
    if (text.size() > maxNameLength)
        text = text.first(maxNameLength / 2) + u'…' + text.last(maxNameLength / 2 - 1);
    return QCoreApplication::translate("CleanupTexts", "“%1”", "a name").arg(text);
}

/// Returns the first few of `count` names: "“a”, “b” and 12 more".
QString listed(const QStringList& names, qsizetype count) {
    QStringList items;
    for (const QString& name : names.first(std::min(maxQuotedNames, names.size())))
        items.append(quoted(name));
    if (items.isEmpty())
        return {};
    if (count > items.size())
        items.append(QCoreApplication::translate("CleanupTexts", "%1 more").arg(count - items.size()));
    const QString last = items.takeLast();
    return items.isEmpty()
               ? last
               : QCoreApplication::translate("CleanupTexts", "%1 and %2").arg(Formatters::list(items), last);
}

QString namesOf(const CacheTarget& target) {
    const CleanupPlan::Names names = CleanupPlan::namesOf(target, maxQuotedNames);
    QStringList shown;
    for (const CacheEntry& entry : names.shown)
        shown.append(entry.path);
    return listed(shown, names.count);
}

bool takesVolumes(const CacheTarget& target) {
    return !target.volumes || !target.volumes->isEmpty();
}

QString volumesOf(const CacheTarget& target) {
    if (!target.volumes)
        return QCoreApplication::translate("CleanupTexts", "unknown volumes");
    const auto count = static_cast<int>(target.volumes->size());
    return QCoreApplication::translate("CleanupTexts", "%n volume(s), %1", nullptr, count)
        .arg(listed(*target.volumes, count));
}

} // namespace

QString CleanupTexts::progress(const QString& sentence, const CleanupProgress& progress) {
    const QString text =
        sentence.arg(Translations::of(progress.target)).arg(progress.done).arg(progress.total);
    if (progress.bytes == 0)
        return text;
    const QString bytes = Formatters::bytes(progress.bytes);
    return text + u" • "_s +
           (progress.totalBytes == 0 ? bytes
                                     : QCoreApplication::translate("CleanupTexts", "%1 of %2")
                                           .arg(bytes, Formatters::bytes(progress.totalBytes)));
}

bool CleanupTexts::takesUserFiles(const CacheTarget& target) {
    return target.rule.hasUserFiles || takesVolumes(target);
}

QString CleanupTexts::whatGoes(const CacheTarget& target) {
    if (takesVolumes(target))
        return QCoreApplication::translate("CleanupTexts", "Gone for good: %1").arg(volumesOf(target));
    const QString names = namesOf(target);
    if (target.rule.hasUserFiles)
        return names.isEmpty() ? QCoreApplication::translate("CleanupTexts", "Gone for good")
                               : QCoreApplication::translate("CleanupTexts", "Gone for good: %1").arg(names);
    if (names.isEmpty() && target.pruneCommand)
        return QCoreApplication::translate("CleanupTexts", "Runs %1").arg(*target.pruneCommand);
    return names;
}

QString CleanupTexts::question(const CacheTarget& target) {
    QStringList paragraphs;
    const QString names = namesOf(target);
    if (target.rule.hasUserFiles) {
        paragraphs.append(
            names.isEmpty()
                ? QCoreApplication::translate(
                      "CleanupTexts", "These are files of yours, no caches. They will be gone for good.")
                : QCoreApplication::translate("CleanupTexts",
                                              "These files of yours will be gone for good: %1.")
                      .arg(names));
    } else if (takesVolumes(target)) {
        paragraphs.append(
            target.volumes
                ? QCoreApplication::translate("CleanupTexts", "Gone for good, with all that is in them: %1.")
                      .arg(volumesOf(target))
                : QCoreApplication::translate("CleanupTexts",
                                              "It is unknown which volumes go, with all that is in them."));
        paragraphs.append(QCoreApplication::translate(
            "CleanupTexts",
            "Stopped containers go too. Images and build caches are fetched or built again as "
            "needed."));
    } else {
        paragraphs.append(QCoreApplication::translate(
            "CleanupTexts", "Deleting cache files. Apps will rebuild caches as needed."));
        if (!names.isEmpty())
            paragraphs.append(QCoreApplication::translate("CleanupTexts", "What goes: %1.").arg(names));
        if (target.rule.measure == CleanupRule::Measure::containers && !target.details.isEmpty())
            paragraphs.append(QCoreApplication::translate("CleanupTexts", "No volumes go."));
    }
    for (const QString& note : target.notes)
        paragraphs.append(Formatters::visible(note));
    return paragraphs.join(paragraph);
}

QString CleanupTexts::questionAll(const QList<CacheTarget>& targets) {
    QStringList grave;
    for (const CacheTarget& target : targets) {
        if (takesUserFiles(target))
            grave.append(Translations::of(target.name));
    }
    QString text =
        QCoreApplication::translate("CleanupTexts", "Runs every cleanup with a size estimate above 0.");
    if (grave.size() < targets.size())
        text += u' ' + QCoreApplication::translate("CleanupTexts", "Apps will rebuild caches as needed.");
    if (!grave.isEmpty())
        text += paragraph + QCoreApplication::translate(
                                "CleanupTexts", "Not so with what is yours. It will be gone for good: %1.")
                                .arg(Formatters::list(grave));
    const quint64 sum =
        std::accumulate(targets.begin(), targets.end(), quint64(0),
                        [](quint64 total, const CacheTarget& target) { return total + target.sizeBytes; });
    if (sum != CleanupOverlap::totalBytes(targets))
        text += paragraph +
                QCoreApplication::translate("CleanupTexts",
                                            "Some of them overlap; the total counts what they share once.");
    return text;
}

QString CleanupTexts::outcome(qsizetype asked, std::pair<int, quint64> cleaned, const CleanupReport& report) {
    const QString freed = Formatters::bytes(cleaned.second);
    if (report.wasCancelled)
        return QCoreApplication::translate("CleanupTexts", "Stopped: cleaned %1 of %2 targets, freed ~%3")
            .arg(cleaned.first)
            .arg(asked)
            .arg(freed);
    return QCoreApplication::translate("CleanupTexts", "Cleaned %1 targets, freed ~%2")
        .arg(cleaned.first)
        .arg(freed);
}

QString CleanupTexts::cameBack(std::optional<qint64> volumeBytes) {
    if (!volumeBytes)
        return {};
    const auto bytes = static_cast<quint64>(std::max<qint64>(0, *volumeBytes));
    return QCoreApplication::translate("CleanupTexts", "%1 came back on the disk")
        .arg(Formatters::bytes(bytes));
}

QString CleanupTexts::unfinished(const CleanupReport& report) {
    QStringList targets;
    for (const CleanupFailure& failure : report.failures) {
        const QString reason = Formatters::visible(failure.reason);
        const QString target = Translations::of(failure.target);
        targets.append(reason.isEmpty() ? target : u"%1 (%2)"_s.arg(target, reason));
    }
    return targets.isEmpty() ? QString()
                             : QCoreApplication::translate("CleanupTexts", "Not finished: %1")
                                   .arg(Formatters::list(targets));
}
