#include "Core/NukePreview.h"

#include "Core/Formatters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype listedPids = 20;

/// The outermost bundle that the executable lies in.
std::optional<QString> owningApplication(const QString& path) {
    const qsizetype bundle = path.indexOf(".app/"_L1);
    if (bundle < 0)
        return std::nullopt;
    const qsizetype begin = bundle == 0 ? 0 : path.lastIndexOf(u'/', bundle - 1) + 1;
    return path.mid(begin, bundle - begin);
}

std::optional<QString> commonApplication(const QList<ProcSample>& processes) {
    if (processes.isEmpty())
        return std::nullopt;
    const auto first = owningApplication(processes.first().executablePath);
    const bool shared = std::all_of(processes.begin(), processes.end(), [&first](const ProcSample& process) {
        return owningApplication(process.executablePath) == first;
    });
    return shared ? first : std::nullopt;
}

QString pidList(const QList<qint32>& pids) {
    QStringList texts;
    for (const qint32 pid : pids.first(std::min(listedPids, pids.size())))
        texts.append(QString::number(pid));
    return texts.join(u", "_s) + (pids.size() > listedPids ? u"…"_s : QString());
}

} // namespace

NukePreview NukePreview::make(const QString& name, const QList<ProcSample>& processes) {
    NukePreview preview{.id = QUuid::createUuid(),
                        .name = name,
                        .pids = {},
                        .totalRSS = 0,
                        .parentAppName = commonApplication(processes)};
    for (const ProcSample& process : processes) {
        preview.pids.append(process.pid);
        preview.totalRSS += process.rssBytes;
    }
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
               u'.';
    }
    return u"Sends SIGTERM to all "_s + count +
           u" PIDs. Use sparingly — unsaved work in those processes may be lost.\n\nPIDs: "_s + pidList(pids);
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

QString NukePreview::quitScript(const QString& appName, bool force) {
    const QString escaped = QString(appName).replace(u'"', u"\\\""_s);
    return u"tell application \""_s + escaped + (force ? u"\" to quit saving no"_s : u"\" to quit"_s);
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
