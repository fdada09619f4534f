#include "Core/ActionLogFile.h"

#include "Core/Iso8601.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString Cleaner::actionLogPath() {
    return QDir::homePath() + QStringLiteral("/Library/Logs/Tavrin/actions.log");
}

void Cleaner::appendActionLog(const ActionLogEntry& entry) {
    const QFileInfo place(actionLogPath());
    QDir().mkpath(place.path());
    // Opening a pipe that nobody reads would never return.
    if (place.exists() && !place.isFile())
        return;
    const QByteArray line = Iso8601::format(entry.timestamp) + '\t' + rawValue(entry.kind).toUtf8() + '\t' +
                            (entry.success ? "ok" : "fail") + '\t' + QByteArray::number(entry.freedBytes) +
                            '\t' + entry.detail.toUtf8() + '\n';
    QFile file(place.filePath());
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        file.write(line);
}
