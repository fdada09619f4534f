#include "Core/ActionLog/ActionLogFile.h"

#include "Core/Iso8601.h"
#include "Platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/// Returns whether a crash cut the last line short. The next line must not continue it.
bool endsInsideALine(QFile& file) {
    char last = '\n';
    return file.size() > 0 && file.seek(file.size() - 1) && file.getChar(&last) && last != '\n';
}

} // namespace

QString ActionLogFile::path() {
    return QDir::homePath() + QStringLiteral("/Library/Logs/Tavrin/actions.log");
}

bool ActionLogFile::isObstructed() {
    const QFileInfo place(path());
    return place.exists() && !place.isFile();
}

QByteArray ActionLogFile::lineOf(const ActionLogEntry& entry) {
    return Iso8601::format(entry.timestamp) + '\t' + rawValue(entry.kind).toUtf8() + '\t' +
           (entry.success ? "ok" : "fail") + '\t' + QByteArray::number(entry.freedBytes) + '\t' +
           entry.detail.toUtf8() + '\n';
}

void ActionLogFile::append(const ActionLogEntry& entry) {
    QFile file(path());
    QDir().mkpath(QFileInfo(file).path());
    if (isObstructed() || !file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) {
        qCWarning(Log::platform) << "the log of actions cannot be written:" << file.errorString();
        return;
    }
    const qint64 end = file.size();
    const QByteArray line = (endsInsideALine(file) ? "\n" : "") + lineOf(entry);
    // A partial line may end inside a character, and then the whole file is no valid UTF-8.
    if (file.write(line) < line.size()) {
        qCWarning(Log::platform) << "the log of actions takes no more:" << file.errorString();
        file.resize(end);
    }
}
