#include "Platform/Linux/TerminalSessions.h"

#include "Platform/Linux/KernelText.h"
#include "Platform/Linux/ProcStat.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <signal.h>

using namespace Qt::StringLiterals;

namespace {

struct TerminalProcess {
    qint32 pid = 0;
    qint32 parentPid = 0;
    qint32 session = 0;
    qint32 terminal = 0;

    bool leads() const { return pid == session; }
};

std::string procText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

/// Lists the processes with a terminal.
QList<TerminalProcess> processesIn(const QString& root) {
    QList<TerminalProcess> processes;
    for (const QString& name : QDir(root).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        const auto stat = ProcStat::parse(procText(root + u'/' + name + u"/stat"_s));
        if (stat && stat->terminal != 0)
            processes.append({name.toInt(), stat->parentPid, stat->session, stat->terminal});
    }
    return processes;
}

/// Reads SigIgn of proc(5): bit N - 1 for signal N.
bool ignoresHangUp(qint32 pid, const QString& root) {
    const std::string status = procText(root + u'/' + QString::number(pid) + u"/status"_s);
    const auto mask = KernelText::valueOf(status, "SigIgn:").value_or(std::string_view());
    const auto bits = QByteArrayView(mask.data(), static_cast<qsizetype>(mask.size())).trimmed();
    return (bits.toByteArray().toULongLong(nullptr, 16) >> (SIGHUP - 1) & 1) != 0;
}

} // namespace

QList<qint32> TerminalSessions::startedFrom(const QList<qint32>& pids, const QString& root) {
    const QList<TerminalProcess> processes = processesIn(root);
    QSet<qint32> found(pids.begin(), pids.end());
    QSet<qint32> sessions;
    for (bool isNew = true; isNew;) {
        isNew = false;
        for (const TerminalProcess& leader : processes) {
            if (!leader.leads() || sessions.contains(leader.session) || !found.contains(leader.parentPid))
                continue;
            sessions.insert(leader.session);
            isNew = true;
            for (const TerminalProcess& process : processes) {
                if (process.session == leader.session && process.terminal == leader.terminal)
                    found.insert(process.pid);
            }
        }
    }
    QList<qint32> result;
    for (const TerminalProcess& process : processes) {
        if (found.contains(process.pid) && !pids.contains(process.pid) && !ignoresHangUp(process.pid, root))
            result.append(process.pid);
    }
    return result;
}
