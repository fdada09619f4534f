#include "Platform/Linux/TerminalSessions.h"

#include "Platform/Linux/KernelText.h"
#include "Platform/Linux/ProcStat.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <signal.h>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    qint32 pid = 0;
    qint32 parentPid = 0;
    qint32 session = 0;
    qint32 terminal = 0;

    bool leads() const { return pid == session; }
};

std::string textOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

/// Lists the processes with a terminal.
QList<Row> rowsIn(const QString& root) {
    QList<Row> rows;
    for (const QString& name : QDir(root).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        const auto stat = ProcStat::parse(textOf(root + u'/' + name + u"/stat"_s));
        if (stat && stat->terminal != 0)
            rows.append({name.toInt(), stat->parentPid, stat->session, stat->terminal});
    }
    return rows;
}

/// Reads SigIgn of proc(5): bit N - 1 for signal N.
bool ignoresHangUp(qint32 pid, const QString& root) {
    const std::string status = textOf(root + u'/' + QString::number(pid) + u"/status"_s);
    const auto mask = KernelText::valueOf(status, "SigIgn:").value_or(std::string_view());
    const auto bits = QByteArrayView(mask.data(), static_cast<qsizetype>(mask.size())).trimmed();
    return (bits.toByteArray().toULongLong(nullptr, 16) >> (SIGHUP - 1) & 1) != 0;
}

} // namespace

QList<qint32> TerminalSessions::startedFrom(const QList<qint32>& pids, const QString& root) {
    const QList<Row> rows = rowsIn(root);
    QSet<qint32> found(pids.begin(), pids.end());
    QSet<qint32> sessions;
    for (bool isNew = true; isNew;) {
        isNew = false;
        for (const Row& leader : rows) {
            if (!leader.leads() || sessions.contains(leader.session) || !found.contains(leader.parentPid))
                continue;
            sessions.insert(leader.session);
            isNew = true;
            for (const Row& row : rows) {
                if (row.session == leader.session && row.terminal == leader.terminal)
                    found.insert(row.pid);
            }
        }
    }
    QList<qint32> result;
    for (const Row& row : rows) {
        if (found.contains(row.pid) && !pids.contains(row.pid) && !ignoresHangUp(row.pid, root))
            result.append(row.pid);
    }
    return result;
}
