#include "Core/Relief/NukePreview.h"

#include "Core/Formatters.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxListedPids = 20;
constexpr qsizetype maxListedNames = 10;

QString pidList(const QList<qint32>& pids) {
    QStringList texts;
    for (const qint32 pid : pids.first(std::min(maxListedPids, pids.size())))
        texts.append(QString::number(pid));
    return texts.join(u", "_s) + (pids.size() > maxListedPids ? u"…"_s : QString());
}

/// Returns "bash ×2, node" in the order of the list.
QString nameList(const QList<ProcSample>& processes) {
    QStringList names;
    QHash<QString, int> counts;
    for (const ProcSample& process : processes) {
        if (counts[process.name]++ == 0)
            names.append(process.name);
    }
    const bool isCut = names.size() > maxListedNames;
    names = names.first(std::min(maxListedNames, names.size()));
    for (QString& name : names) {
        if (const int count = counts.value(name); count > 1)
            name += u" ×%1"_s.arg(count);
    }
    return names.join(u", "_s) + (isCut ? u"…"_s : QString());
}

quint64 rssOf(const QList<ProcSample>& processes) {
    return std::accumulate(processes.begin(), processes.end(), quint64{0},
                           [](quint64 sum, const ProcSample& process) { return sum + process.rssBytes; });
}

} // namespace

std::optional<QString> NukePreview::bundleOf(const QString& executablePath) {
    const qsizetype bundle = executablePath.indexOf(".app/"_L1);
    if (bundle < 0)
        return std::nullopt;
    const qsizetype begin = bundle == 0 ? 0 : executablePath.lastIndexOf(u'/', bundle - 1) + 1;
    return executablePath.mid(begin, bundle - begin);
}

std::optional<QString> NukePreview::common(const Applications& applications) {
    const bool isShared =
        !applications.isEmpty() && applications.count(applications.first()) == applications.size();
    return isShared ? applications.first() : std::nullopt;
}

NukePreview NukePreview::make(const QString& name, const QList<ProcSample>& processes,
                              const Applications& applications) {
    NukePreview preview{.id = QUuid::createUuid(), .name = name};
    Applications owners;
    for (qsizetype i = 0; i < processes.size(); ++i) {
        const ProcSample& process = processes[i];
        preview.pids.append(process.pid);
        preview.startTimes.append(process.startTime);
        preview.totalRSS += process.rssBytes;
        const auto bundle = bundleOf(process.executablePath);
        owners.append(bundle ? bundle : applications.value(i));
    }
    preview.parentAppName = common(owners);
    return preview;
}

QString NukePreview::dialogTitle() const {
    const QString count = QString::number(pids.size());
    if (parentAppName)
        return u"Quit “"_s + *parentAppName + u"” and all "_s + count + u" helpers?"_s;
    return u"Kill all "_s + count + u" “"_s + name + u"” processes?"_s;
}

QString NukePreview::dialogMessage() const {
    const QString count = QString::number(pids.size());
    if (parentAppName) {
        return u"Tells "_s + *parentAppName + u" to quit cleanly — closes all "_s + count +
               u" child processes in one sweep, no per-tab pop-ups. Frees ≈"_s + Formatters::bytes(totalRSS) +
               u'.' + terminalsMessage();
    }
    return u"Sends SIGTERM to all "_s + count +
           u" PIDs. Use sparingly — unsaved work in those processes may be lost.\n\nPIDs: "_s + pidList(pids);
}

QString NukePreview::terminalsMessage() const {
    if (inTerminals.isEmpty())
        return {};
    return u"\n\nWhat runs in its terminals ends too (≈"_s + Formatters::bytes(rssOf(inTerminals)) +
           u"): "_s + nameList(inTerminals) + u'.';
}

QString NukePreview::quitButton() const {
    return u"Quit "_s + parentAppName.value_or(QString()) + u" (≈"_s + Formatters::bytes(totalRSS) + u')';
}

QString NukePreview::forceQuitButton() const {
    return u"Force-quit "_s + parentAppName.value_or(QString()) + u" (no save prompt)"_s;
}

QString NukePreview::killButton() const {
    return u"Kill "_s + QString::number(pids.size()) + u" (≈"_s + Formatters::bytes(totalRSS) + u')';
}

QString NukePreview::quitOutcome(const QString& appName, bool succeeded) const {
    if (!succeeded)
        return u"Couldn't tell "_s + appName +
               u" to quit (it may not be scriptable). Try the force variant."_s;
    return appName + u" quit cleanly — "_s + QString::number(pids.size()) + u" helpers closed (≈"_s +
           Formatters::bytes(totalRSS) + u" freed)"_s;
}

QString NukePreview::killOutcome(int killed) const {
    return u"Killed "_s + QString::number(killed) + u'/' + QString::number(pids.size()) + u" “"_s + name +
           u"” processes (≈"_s + Formatters::bytes(totalRSS) + u" targeted)"_s;
}
