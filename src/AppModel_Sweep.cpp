#include "AppModel.h"

#include "Core/MemoryTools.h"
#include "Platform/Identity.h"

#include <QPointer>

using namespace Qt::StringLiterals;

NukePreview AppModel::previewForName(const QString& name) const {
    QList<ProcSample> named;
    for (const ProcSample& process : m_processes) {
        if (process.name == name && process.pid != m_platform.identity->processId())
            named.append(process);
    }
    return NukePreview::make(name, named);
}

QString AppModel::nuke(const NukePreview& preview) {
    // The preview may have been on show for long: an id that meanwhile names something else is left alone.
    QList<qint32> stillNamed;
    for (const qint32 pid : preview.pids) {
        const ProcSample* running = process(pid);
        if (running && running->name == preview.name)
            stillNamed.append(pid);
    }
    const int killed = signalAll(stillNamed, false);
    record(ActionLogEntry::Kind::quit,
           u"[nuke duplicates] "_s + preview.name + u" — %1/%2 PIDs"_s.arg(killed).arg(preview.pids.size()),
           0, true);
    return preview.killOutcome(killed);
}

QCoro::Task<QString> AppModel::nukeGracefulApp(NukePreview preview, QString appName, bool force) {
    const QPointer<AppModel> self(this);
    auto asking = Cleaner::runOsascript(m_platform.tools, NukePreview::quitScript(appName, force));
    const bool succeeded = co_await asking;
    QString outcome = preview.quitOutcome(appName, succeeded);
    if (!self)
        co_return outcome;
    const auto kind = force ? ActionLogEntry::Kind::forceKill : ActionLogEntry::Kind::quit;
    const QString detail = u"[graceful quit] "_s + appName +
                           u" (%1 child PIDs targeted)"_s.arg(preview.pids.size()) +
                           (force ? u" — force"_s : QString());
    record(kind, detail, 0, succeeded);
    co_return outcome;
}
