#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// An empty folder of the test. Some tests build "/", "/proc" or "/sys" of another machine in it.
class TemporaryFolder {
public:
    QString path(const QString& below = {}) const {
        return below.isEmpty() ? m_folder.path() : m_folder.filePath(below);
    }
    QString makeFolder(const QString& below) const {
        QDir().mkpath(path(below));
        return path(below);
    }
    QString makeFile(const QString& below, const QByteArray& content = "x") const {
        makeFolder(QFileInfo(below).path());
        QFile file(path(below));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path(below)));
        return path(below);
    }
    QString makeProgram(const QString& below, const QByteArray& content) const {
        const QString file = makeFile(below, content);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file;
    }

private:
    QTemporaryDir m_folder;
};
