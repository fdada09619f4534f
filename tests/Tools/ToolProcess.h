#pragma once

#include <QCoreApplication>
#include <QProcess>

struct EndedTool {
    int status = -1; ///< -1: it did not exit by itself
    QByteArray output;
    QByteArray error;
};

/// Runs a tool of the build tree to its end.
inline EndedTool runTool(const QString& name, const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../libexec/tavrin/") + name,
                  arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError().trimmed()};
}
