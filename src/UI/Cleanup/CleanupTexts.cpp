#include "UI/Cleanup/CleanupTexts.h"

#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Formatters.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxNames = 3;
constexpr qsizetype maxNameLength = 40;
const auto paragraph = u"\n\n"_s;

QString quoted(const QString& name) {
    QString text = Formatters::visible(name);
    if (text.size() > maxNameLength)
        text = text.first(maxNameLength / 2) + u'…' + text.last(maxNameLength / 2 - 1);
    return u"“%1”"_s.arg(text);
}

/// "“a”, “b” and 12 more": the first few of so many.
QString listed(const QStringList& names, qsizetype count) {
    QStringList items;
    for (const QString& name : names.first(std::min(maxNames, names.size())))
        items.append(quoted(name));
    if (items.isEmpty())
        return {};
    if (count > items.size())
        items.append(u"%1 more"_s.arg(count - items.size()));
    const QString last = items.takeLast();
    return items.isEmpty() ? last : u"%1 and %2"_s.arg(items.join(u", "_s), last);
}

QString namesOf(const CacheTarget& target) {
    const CleanupPlan::Names names = CleanupPlan::namesOf(target, maxNames);
    QStringList shown;
    for (const CacheEntry& entry : names.shown)
        shown.append(entry.path);
    return listed(shown, names.count);
}

QString volumesOf(const CacheTarget& target) {
    const qsizetype count = target.volumes.size();
    return u"%1 %2, %3"_s.arg(count).arg(count == 1 ? u"volume"_s : u"volumes"_s,
                                         listed(target.volumes, count));
}

} // namespace

QString CleanupTexts::progress(const QString& doing, const CleanupProgress& progress) {
    return u"%1 %2 (%3 of %4)"_s.arg(doing, progress.target).arg(progress.done).arg(progress.total);
}

bool CleanupTexts::takesUserFiles(const CacheTarget& target) {
    return target.rule.hasUserFiles || !target.volumes.isEmpty();
}

QString CleanupTexts::whatGoes(const CacheTarget& target) {
    if (!target.volumes.isEmpty())
        return u"Gone for good: "_s + volumesOf(target);
    const QString names = namesOf(target);
    if (target.rule.hasUserFiles)
        return names.isEmpty() ? u"Gone for good"_s : u"Gone for good: "_s + names;
    if (names.isEmpty() && target.pruneCommand)
        return u"Runs "_s + *target.pruneCommand;
    return names;
}

QString CleanupTexts::question(const CacheTarget& target) {
    QStringList paragraphs;
    const QString names = namesOf(target);
    if (target.rule.hasUserFiles) {
        paragraphs.append(names.isEmpty()
                              ? u"These are files of yours, no caches. They will be gone for good."_s
                              : u"These files of yours will be gone for good: %1."_s.arg(names));
    } else if (!target.volumes.isEmpty()) {
        paragraphs.append(u"Gone for good, with all that is in them: %1."_s.arg(volumesOf(target)));
        paragraphs.append(u"Stopped containers go too. Images and build caches are fetched or built again as "
                          "needed."_s);
    } else {
        paragraphs.append(u"Deleting cache files. Apps will rebuild caches as needed."_s);
        if (!names.isEmpty())
            paragraphs.append(u"What goes: %1."_s.arg(names));
        if (target.rule.measure == CleanupRule::Measure::containers && !target.details.isEmpty())
            paragraphs.append(u"No volumes go."_s);
    }
    for (const QString& note : target.notes)
        paragraphs.append(Formatters::visible(note));
    return paragraphs.join(paragraph);
}

QString CleanupTexts::questionAll(const QList<CacheTarget>& targets) {
    QStringList grave;
    for (const CacheTarget& target : targets) {
        if (takesUserFiles(target))
            grave.append(target.name);
    }
    QString text = u"Runs every cleanup with a size estimate above 0."_s;
    if (grave.size() < targets.size())
        text += u" Apps will rebuild caches as needed."_s;
    if (!grave.isEmpty())
        text += paragraph +
                u"Not so with what is yours. It will be gone for good: %1."_s.arg(grave.join(u", "_s));
    const quint64 sum =
        std::accumulate(targets.begin(), targets.end(), quint64(0),
                        [](quint64 total, const CacheTarget& target) { return total + target.sizeBytes; });
    if (sum != CleanupPlan::totalBytes(targets))
        text += paragraph + u"Some of them overlap; the total counts what they share once."_s;
    return text;
}

QString CleanupTexts::outcome(qsizetype asked, std::pair<int, quint64> cleaned, const CleanupReport& report) {
    const QString freed = Formatters::bytes(cleaned.second);
    if (report.wasCancelled)
        return u"Cancelled: cleaned %1 of %2 targets, freed ~%3"_s.arg(cleaned.first).arg(asked).arg(freed);
    return u"Cleaned %1 targets, freed ~%2"_s.arg(cleaned.first).arg(freed);
}

QString CleanupTexts::unfinished(const CleanupReport& report) {
    QStringList targets;
    for (const CleanupFailure& failure : report.failures) {
        const QString reason = Formatters::visible(failure.reason);
        targets.append(reason.isEmpty() ? failure.target : u"%1 (%2)"_s.arg(failure.target, reason));
    }
    return targets.isEmpty() ? QString() : u"Not finished: "_s + targets.join(u", "_s);
}
