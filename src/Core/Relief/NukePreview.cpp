#include "Core/Relief/NukePreview.h"

#include "Core/Formatters.h"
#include "Core/Memory/SummedMemory.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxListedPids = 20;
constexpr qsizetype maxListedNames = 10;

QString pidList(const QList<qint32>& pids) {
    QStringList texts;
    for (const qint32 pid : pids.first(std::min(maxListedPids, pids.size())))
        texts.append(QString::number(pid));
    return Formatters::list(texts) + (pids.size() > maxListedPids ? u"…"_s : QString());
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
    return Formatters::list(names) + (isCut ? u"…"_s : QString());
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
        preview.givesBack += MemoryReturn::ofEnding(process);
        const auto bundle = bundleOf(process.executablePath);
        owners.append(bundle ? bundle : applications.value(i));
    }
    preview.totalRSS = SummedMemory::of(processes).bytes;
    preview.parentAppName = common(owners);
    return preview;
}

QString NukePreview::dialogTitle() const {
    const QString count = QString::number(pids.size());
    if (parentAppName)
        return QCoreApplication::translate("NukePreview", "Quit “%1” and all %2 helpers?")
            .arg(*parentAppName, count);
    return QCoreApplication::translate("NukePreview", "Kill all %1 “%2” processes?").arg(count, name);
}

QString NukePreview::dialogMessage() const {
    const QString count = QString::number(pids.size());
    if (parentAppName) {
        return QCoreApplication::translate("NukePreview", "Tells %1 to quit cleanly — closes all %2 child "
                                                          "processes in one sweep, no per-tab pop-ups. "
                                                          "Frees ≈%3.")
                   .arg(*parentAppName, count, Formatters::bytes(givesBack.totalBytes())) +
               cacheMessage() + terminalsMessage();
    }
    return QCoreApplication::translate(
               "NukePreview",
               "Sends SIGTERM to all %1 PIDs. Use sparingly — unsaved work in those processes may be lost.")
               .arg(count) +
           u"\n\n"_s + QCoreApplication::translate("NukePreview", "PIDs: %1").arg(pidList(pids));
}

QString NukePreview::cacheMessage() const {
    if (cacheBytes == 0)
        return {};
    return u' ' + QCoreApplication::translate("NukePreview", "%1 of its files stay in the cache.")
                      .arg(Formatters::bytes(cacheBytes));
}

QString NukePreview::terminalsMessage() const {
    if (inTerminals.isEmpty())
        return {};
    return u"\n\n"_s +
           QCoreApplication::translate("NukePreview", "What runs in its terminals ends too (≈%1): %2.")
               .arg(Formatters::bytes(SummedMemory::of(inTerminals).bytes), nameList(inTerminals));
}

QString NukePreview::quitButton() const {
    return QCoreApplication::translate("NukePreview", "Quit %1 (≈%2)")
        .arg(parentAppName.value_or(QString()), Formatters::bytes(givesBack.totalBytes()));
}

QString NukePreview::forceQuitButton() const {
    return QCoreApplication::translate("NukePreview", "Force-quit %1 (no save prompt)")
        .arg(parentAppName.value_or(QString()));
}

QString NukePreview::killButton() const {
    return QCoreApplication::translate("NukePreview", "Kill %1 (≈%2)")
        .arg(QString::number(pids.size()), Formatters::bytes(givesBack.totalBytes()));
}

QString NukePreview::quitOutcome(const QString& appName, bool succeeded) const {
    if (!succeeded)
        return QCoreApplication::translate(
                   "NukePreview",
                   "Couldn't tell %1 to quit (it may not be scriptable). Try the force variant.")
            .arg(appName);
    return QCoreApplication::translate("NukePreview", "%1 quit cleanly — %2 helpers closed (≈%3 freed)")
        .arg(appName, QString::number(pids.size()), Formatters::bytes(givesBack.totalBytes()));
}

QString NukePreview::killOutcome(int killed) const {
    return QCoreApplication::translate("NukePreview", "Killed %1/%2 “%3” processes (≈%4 targeted)")
        .arg(QString::number(killed), QString::number(pids.size()), name, Formatters::bytes(totalRSS));
}
